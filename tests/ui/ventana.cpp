#include "tests/ui/ventana.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMenuBar>
#include <QMessageBox>
#include <QPointer>
#include <QWindow>

namespace corvanda::pruebas {

namespace {

constexpr const char* VISTA = "vista_por_el_vigilante";
constexpr int PACIENCIA = 30000;  // milliseconds that a window may stay open

/// A box as the journal writes it, empty for other windows.
std::string Caja_De(const QWidget& ventana) {
    const auto* caja = qobject_cast<const QMessageBox*>(&ventana);
    if (caja == nullptr) return {};
    constexpr int estilos[] = {0, 64, 48, 16, 36};  // by QMessageBox::Icon
    return "caja " + std::to_string(estilos[caja->icon()]) + " [" +
           caja->windowTitle().toStdString() + "] " + caja->text().toStdString();
}

}  // namespace

QString Carpeta_De_Imagenes() {
    return QCoreApplication::applicationDirPath() + "/imagenes";
}

QPoint Raton_De_Pruebas::En_Ventana(Lugar lugar) const {
    Estuche& estuche = ventana.Tablero();
    const QPointF punto(lugar.x * estuche.width() / Estuche::ANCHO,
                        lugar.y * estuche.height() / Estuche::ALTO);
    return estuche.mapTo(&ventana, punto.toPoint());
}

void Raton_De_Pruebas::Ir(Lugar lugar) {
    QTest::mouseMove(ventana.windowHandle(), En_Ventana(lugar));
}

void Raton_De_Pruebas::Pulsar(Lugar lugar, Qt::MouseButton boton) {
    QTest::mousePress(ventana.windowHandle(), boton, {}, En_Ventana(lugar));
}

void Raton_De_Pruebas::Soltar(Lugar lugar, Qt::MouseButton boton) {
    QTest::mouseRelease(ventana.windowHandle(), boton, {}, En_Ventana(lugar));
}

void Raton_De_Pruebas::Arrastrar(Lugar desde, Lugar hasta) {
    Pulsar(desde);
    Ir({(desde.x + hasta.x) / 2, (desde.y + hasta.y) / 2});
    Ir(hasta);
    Soltar(hasta);
}

void Raton_De_Pruebas::Elegir(const QString& menu, const QString& entrada) {
    QMenuBar& barra = *ventana.menuBar();
    auto* abierto = barra.findChild<QMenu*>(menu);
    ASSERT_NE(abierto, nullptr) << menu.toStdString();
    const QPoint en_barra = barra.actionGeometry(abierto->menuAction()).center();
    QTest::mouseClick(ventana.windowHandle(), Qt::LeftButton, {}, barra.mapTo(&ventana, en_barra));
    ASSERT_TRUE(QTest::qWaitFor([&] { return abierto->isVisible(); }));
    const QRect lugar = abierto->actionGeometry(abierto->findChild<QAction*>(entrada));
    QTest::mouseClick(abierto, Qt::LeftButton, {}, lugar.center());
}

Vigilante::Vigilante() {
    QObject::connect(&reloj, &QTimer::timeout, [this] { Mirar(); });
    reloj.start(1);
}

// The hand works outside the timer's own handler, or a window that it opens would not be seen.
void Vigilante::Mirar() {
    QWidget* ventana = QApplication::activeModalWidget();
    if (ventana == nullptr || !ventana->isVisible() || ventana->property(VISTA).toBool()) return;
    ventana->setProperty(VISTA, true);
    QTimer::singleShot(PACIENCIA, ventana, [ventana] {
        ADD_FAILURE() << "stayed open: " << ventana->windowTitle().toStdString();
        ventana->close();
    });
    if (const std::string caja = Caja_De(*ventana); !caja.empty()) cajas.push_back(caja);
    Mano mano = siempre;
    if (!manos.empty()) {
        mano = std::move(manos.front());
        manos.pop_front();
    }
    QTimer::singleShot(0, ventana, [ventana, mano] {
        if (mano) return mano(*ventana);
        ADD_FAILURE() << "nobody expected " << ventana->windowTitle().toStdString();
        ventana->close();
    });
}

void Pulsar(QWidget& ventana, const QString& boton) {
    for (auto* uno : ventana.findChildren<QAbstractButton*>()) {
        if (uno->text() == boton) return QTest::mouseClick(uno, Qt::LeftButton);
    }
    ADD_FAILURE() << "no button " << boton.toStdString();
    ventana.close();
}

void Sortear(QWidget& dialogo) {
    const QPointer<QWidget> abierto(&dialogo);
    auto* boton = dialogo.findChild<QAbstractButton*>("Btn");
    ASSERT_NE(boton, nullptr);
    while (abierto && abierto->isVisible()) QTest::mouseClick(boton, Qt::LeftButton);
}

void Ventana::Pases::DoEvents() {
    QCoreApplication::processEvents();
    escritorio.DoEvents();
}

void Ventana::Pases::DoEventsPaced() {
    QCoreApplication::processEvents();
    escritorio.DoEventsPaced();
}

Ventana::Ventana(Cajas cajas, Oponente* computadora, Escala escala)
    : frm(partida,
          {cajas == Cajas::Reales ? static_cast<MessageBoxes&>(boxes) : escritorio, pases,
           escritorio, escritorio, escritorio, escritorio, escritorio, escritorio},
          escala, estampas, computadora) {
    boxes.SetMainWindow(&frm);
}

void Ventana::Abrir() {
    frm.Form_Load();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&frm));
    // At large device pixel ratios the test's screen is smaller than the case.
    if (frm.width() < frm.Tablero().width()) frm.showNormal();
    QCoreApplication::processEvents();
    escritorio.Leer();
}

void Ventana::Poner(const std::string& posicion) {
    if (!frm.isVisible()) Abrir();
    partida.Sonido = False;
    pruebas::Poner(frm.Mesa(), partida, posicion);
    frm.Tablero().update();
    QCoreApplication::processEvents();
    escritorio.Leer();
}

Diario Ventana::Leer() {
    Diario diario = escritorio.Leer();
    std::erase_if(diario, [](const std::string& linea) {
        return linea.starts_with("puntero") || linea == "siembra";
    });
    return diario;
}

Lugar Ventana::Centro(Control control) const {
    const Image& imagen = *Imagen_De(partida, control);
    return {static_cast<double>(imagen.Left + imagen.Width / 2),
            static_cast<double>(imagen.Top + imagen.Height / 2)};
}

}  // namespace corvanda::pruebas
