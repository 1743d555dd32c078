#include "ui/estuche_accesible.h"

#include <QApplication>
#include <QPointer>
#include <algorithm>

#include "ui/estuche.h"

namespace corvanda {

namespace {

QAccessibleInterface* Hacer(const QString& /*clase*/, QObject* objeto) {
    auto* estuche = qobject_cast<Estuche*>(objeto);
    return estuche == nullptr ? nullptr : new EstucheAccesible(*estuche);
}

// What places and dice have in common: a part of the board without a widget of its own.
class Parte : public QAccessibleInterface {
  public:
    explicit Parte(Estuche& estuche) : estuche(&estuche) {}

    bool isValid() const override { return !estuche.isNull(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return estuche->window()->windowHandle(); }
    QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(estuche);
    }
    QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface* /*hijo*/) const override { return -1; }
    QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
    void setText(QAccessible::Text /*cual*/, const QString& /*texto*/) override {}
    QRect rect() const override {
        const QRect area = Area();
        return {estuche->mapToGlobal(area.topLeft()), area.size()};
    }

  protected:
    virtual QRect Area() const = 0;
    const Partida& Estado() const { return estuche->Estado(); }

    QPointer<Estuche> estuche;
};

class Sitio final : public Parte, public QAccessibleActionInterface {
  public:
    Sitio(Estuche& estuche, Integer lugar) : Parte(estuche), lugar(lugar) {}

    QAccessible::Role role() const override { return QAccessible::Button; }

    QString text(QAccessible::Text cual) const override {
        if (cual == QAccessible::Name) return lugares::Nombre(Estado(), lugar);
        if (cual != QAccessible::Description) return {};
        const bool abierto = estuche->La_Mano().Destinos()[static_cast<std::size_t>(lugar)];
        return (abierto ? "Can be dropped here. " : "") + lugares::Descripcion(lugar);
    }

    QAccessible::State state() const override {
        QAccessible::State estado;
        const Control tope = lugares::Tope(Estado(), lugar);
        estado.invisible = !estuche->isVisible();
        estado.focusable = true;
        estado.focused = estuche->hasFocus() && estuche->Teclas().A_La_Vista() &&
                         estuche->Teclas().Elegido() == lugar;
        estado.selectable = estuche->Se_Puede_Tomar(lugar);
        estado.selected = tope.Nombre != Arreglo::Ninguno && estuche->La_Mano().Ficha() == tope;
        return estado;
    }

    void* interface_cast(QAccessible::InterfaceType tipo) override {
        if (tipo != QAccessible::ActionInterface) return nullptr;
        return static_cast<QAccessibleActionInterface*>(this);
    }

    QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
    QStringList keyBindingsForAction(const QString& /*cual*/) const override { return {}; }

    // A press may bring the computer's whole turn or a box with it, and whoever asks for it must
    // have an answer before. Nobody may reach round a box, either.
    void doAction(const QString& cual) override {
        const bool pulsar = cual == pressAction();
        if (!pulsar && cual != setFocusAction()) return;
        const auto hacer = [en = estuche.data(), donde = lugar, pulsar] {
            if (QApplication::activeModalWidget() != nullptr || !en->isVisible()) return;
            en->setFocus();
            en->Teclas().Elegir(donde);
            if (pulsar) en->Teclas().Pulsar();
        };
        QMetaObject::invokeMethod(estuche, hacer, Qt::QueuedConnection);
    }

  private:
    QRect Area() const override { return estuche->Medidas().Area(lugar); }

    const Integer lugar;
};

class DadoAccesible final : public Parte {
  public:
    DadoAccesible(Estuche& estuche, Integer cual) : Parte(estuche), cual(cual) {}

    QAccessible::Role role() const override { return QAccessible::StaticText; }
    QString text(QAccessible::Text que) const override {
        return que == QAccessible::Name ? lugares::Nombre_De_Dado(Estado(), cual) : QString();
    }
    QAccessible::State state() const override {
        QAccessible::State estado;
        estado.readOnly = true;
        estado.invisible = !estuche->isVisible();
        return estado;
    }

  private:
    QRect Area() const override {
        const Image& imagen = Estado().Dado.at(static_cast<std::size_t>(cual));
        return estuche->Lugar(imagen).toAlignedRect();
    }

    const Integer cual;
};

}  // namespace

void EstucheAccesible::Instalar() {
    QAccessible::installFactory(Hacer);
}

EstucheAccesible::EstucheAccesible(Estuche& estuche)
    : QAccessibleWidget(&estuche, QAccessible::Grouping), estuche(estuche) {}

EstucheAccesible::~EstucheAccesible() {
    for (const QAccessible::Id id : hijos) {
        if (id != 0) QAccessible::deleteAccessibleInterface(id);
    }
}

QAccessibleInterface* EstucheAccesible::child(int index) const {
    if (index < 0 || index >= HIJOS) return nullptr;
    QAccessible::Id& id = hijos.at(static_cast<std::size_t>(index));
    if (id == 0) {
        const auto cual = static_cast<Integer>(index);
        QAccessibleInterface* nuevo =
            cual < lugares::CUANTOS
                ? static_cast<QAccessibleInterface*>(new Sitio(estuche, cual))
                : new DadoAccesible(estuche, static_cast<Integer>(cual - lugares::CUANTOS));
        id = QAccessible::registerAccessibleInterface(nuevo);
    }
    return QAccessible::accessibleInterface(id);
}

int EstucheAccesible::indexOfChild(const QAccessibleInterface* hijo) const {
    for (int i = 0; i < HIJOS; ++i) {
        if (child(i) == hijo) return i;
    }
    return -1;
}

// The dice lie over tips of points, and the bars beside the trays.
QAccessibleInterface* EstucheAccesible::childAt(int x, int y) const {
    const auto cubre = [&](int i) {
        const QAccessibleInterface* hijo = child(i);
        const auto dado = static_cast<Integer>(i - lugares::CUANTOS);
        const bool a_la_vista =
            dado < 0 || estuche.Estado().Dado.at(static_cast<std::size_t>(dado)).Visible;
        return a_la_vista && hijo->rect().contains(x, y);
    };
    for (int i = lugares::CUANTOS; i < HIJOS; ++i) {
        if (cubre(i)) return child(i);
    }
    for (int i = 0; i < lugares::CUANTOS; ++i) {
        if (cubre(i)) return child(i);
    }
    return nullptr;
}

QAccessibleInterface* EstucheAccesible::focusChild() const {
    if (!estuche.hasFocus() || !estuche.Teclas().A_La_Vista()) return nullptr;
    return child(estuche.Teclas().Elegido());
}

}  // namespace corvanda
