#include "demostracion/guion.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QThread>
#include <utility>

namespace corvanda {

namespace {

constexpr qint64 PACIENCIA = 10000;     // milliseconds before something counts as not happening
constexpr unsigned long RESPIRO = 350;  // for a picture to settle
constexpr int JUGADAS_MAXIMAS = 1500;

QPushButton* Boton_De(QWidget* ventana, const QString& texto) {
    for (QPushButton* boton : ventana->findChildren<QPushButton*>()) {
        if (!boton->isVisible() || !boton->isEnabled()) continue;
        if (texto.isEmpty() || boton->text() == texto) return boton;
    }
    return nullptr;
}

QString Titulo_De_La_Caja() {
    const QWidget* modal = QApplication::activeModalWidget();
    return modal == nullptr ? QString() : modal->windowTitle();
}

}  // namespace

void Guion::En_La_Ventana(const std::function<void()>& accion) const {
    QMetaObject::invokeMethod(&programa, accion, Qt::BlockingQueuedConnection);
}

bool Guion::Esperar(const std::function<bool()>& condicion) const {
    QElapsedTimer reloj;
    reloj.start();
    bool cumplida = false;
    while (!cumplida && reloj.elapsed() < PACIENCIA) {
        En_La_Ventana([&] { cumplida = condicion(); });
        if (!cumplida) QThread::msleep(10);
    }
    return cumplida;
}

void Guion::Foto(const QString& nombre) {
    QThread::msleep(RESPIRO);
    const QString archivo = QString("%1-%2.png").arg(++fotos, 2, 10, QChar('0')).arg(nombre);
    En_La_Ventana(
        [&] { programa.Ventana().screen()->grabWindow(0).save(carpeta.filePath(archivo)); });
}

QPoint Guion::En_Pantalla(Lugar lugar) const {
    const Escala escala = programa.Ventana().Medida();
    const QPointF punto(escala.Pixeles(lugar.x), escala.Pixeles(lugar.y));
    const qreal ratio = programa.Ventana().devicePixelRatioF();
    return (programa.Ventana().Tablero().mapToGlobal(punto) * ratio).toPoint();
}

QPoint Guion::Centro_De(QWidget* widget) const {
    return widget->mapToGlobal(widget->rect().center()) * widget->devicePixelRatioF();
}

void Guion::Elegir_Menu(const char* menu, const char* entrada) {
    QPoint titulo;
    En_La_Ventana([&] {
        QMenuBar* barra = programa.Ventana().menuBar();
        QAction* accion = programa.Ventana().findChild<QMenu*>(menu)->menuAction();
        titulo =
            barra->mapToGlobal(barra->actionGeometry(accion).center()) * barra->devicePixelRatioF();
    });
    raton.Clic(titulo);
    Esperar([&] { return programa.Ventana().findChild<QMenu*>(menu)->isVisible(); });
    QThread::msleep(RESPIRO / 2);
    QPoint lugar;
    En_La_Ventana([&] {
        auto* abierto = programa.Ventana().findChild<QMenu*>(menu);
        auto* accion = programa.Ventana().findChild<QAction*>(entrada);
        lugar = abierto->mapToGlobal(abierto->actionGeometry(accion).center()) *
                abierto->devicePixelRatioF();
    });
    raton.Clic(lugar);
}

void Guion::Pulsar_Boton(const char* texto) {
    QPoint lugar;
    bool hay = false;
    En_La_Ventana([&] {
        QWidget* modal = QApplication::activeModalWidget();
        QPushButton* boton = modal == nullptr ? nullptr : Boton_De(modal, texto);
        hay = boton != nullptr;
        if (hay) lugar = Centro_De(boton);
    });
    if (hay) raton.Clic(lugar);
}

// Presses the dialog's button until it says who starts, and once more to close it.
QString Guion::Sortear() {
    if (!Esperar([] { return Titulo_De_La_Caja() == "Player to Start"; })) {
        return "the start-player dialog did not open";
    }
    Foto("player-to-start");
    bool decidido = false;
    for (int tiros = 0; tiros < 40 && !decidido; ++tiros) {
        Pulsar_Boton();
        QThread::msleep(RESPIRO);
        En_La_Ventana([&] {
            QWidget* modal = QApplication::activeModalWidget();
            decidido = modal != nullptr && Boton_De(modal, "&Close") != nullptr;
        });
    }
    Foto("who-starts");
    Pulsar_Boton();
    const bool tirados = Esperar([&] { return programa.Estado().Jugando != False; });
    return tirados ? QString() : "the dice were not thrown";
}

// A chip dragged backwards: the message, and the chip back in its place.
void Guion::Equivocarse() {
    Jugada atras;
    QPoint desde;
    QPoint hasta;
    En_La_Ventana([&] {
        const Partida& partida = programa.Estado();
        const bool blanca = partida.Turno == BLANCA;
        atras = {Jugada::Clase::Mover, static_cast<Integer>(blanca ? 11 : 12),
                 static_cast<Integer>(blanca ? 9 : 14)};
        desde = En_Pantalla(Agarre(partida, atras));
        hasta = En_Pantalla(Meta(partida, atras));
    });
    raton.Arrastrar(desde, hasta);
    raton.Soltar();
    Esperar([] { return !Titulo_De_La_Caja().isEmpty(); });
    Foto("no-way-back");
    Pulsar_Boton();
    Esperar([] { return QApplication::activeModalWidget() == nullptr; });
}

QString Guion::Jugar_Una() {
    Jugada jugada;
    QPoint desde;
    QPoint hasta;
    Partida antes;
    En_La_Ventana([&] {
        antes = programa.Estado();
        jugada = Elegir(antes);
        if (jugada.clase == Jugada::Clase::Pasar) return;
        desde = En_Pantalla(Agarre(antes, jugada));
        hasta = En_Pantalla(Meta(antes, jugada));
    });
    if (jugada.clase == Jugada::Clase::Pasar) {
        Elegir_Menu("mnuOpciones", "mnuPasar");
        Esperar([] { return !Titulo_De_La_Caja().isEmpty(); });
        Pulsar_Boton();
    } else {
        raton.Arrastrar(desde, hasta);
        if (fotos == 4) Foto("a-chip-in-hand");
        raton.Soltar();
    }
    const bool hecha = Esperar([&] {
        ganada = Titulo_De_La_Caja() == "¡ You Win !";
        const Partida& ahora = programa.Estado();
        return ganada || (ahora.Jugando != False && !(ahora == antes));
    });
    return hecha ? QString() : "a move did not happen: " + QString::fromStdString(Texto(antes));
}

QString Guion::Jugar_Varias(int cuantas) {
    for (int i = 0; i < cuantas && !ganada; ++i) {
        QString falta = Jugar_Una();
        if (!falta.isEmpty()) return falta;
        bool en_casa = false;
        En_La_Ventana([&] { en_casa = programa.Estado().Blanca_En_Casa != False; });
        if (i == 12) Foto("in-the-middle-of-the-game");
        if (en_casa && !std::exchange(vista_la_salida, true)) Foto("bearing-off");
    }
    return {};
}

QString Guion::Salir() {
    QPoint lugar;
    En_La_Ventana([&] {
        QMenuBar* barra = programa.Ventana().menuBar();
        auto* salir = programa.Ventana().findChild<QAction*>("mnuSalir");
        lugar =
            barra->mapToGlobal(barra->actionGeometry(salir).center()) * barra->devicePixelRatioF();
    });
    raton.Clic(lugar);
    if (!Esperar([] { return Titulo_De_La_Caja() == "¿ Exit ?"; })) {
        return "the quit question did not open";
    }
    Foto("quit");
    Pulsar_Boton("&Yes");
    return {};
}

QString Guion::Representar(bool entera) {
    raton.Ritmo(entera ? 4 : 15);
    if (!Esperar([&] { return programa.Ventana().isVisible(); })) return "no window";
    Foto("the-board");
    Elegir_Menu("mnuGame", "mnuNew");
    QString falta = Sortear();
    if (!falta.isEmpty()) return falta;
    Foto("the-first-roll");
    falta = Jugar_Varias(2);
    if (!falta.isEmpty()) return falta;
    Equivocarse();
    falta = Jugar_Varias(entera ? JUGADAS_MAXIMAS : 14);
    if (!falta.isEmpty()) return falta;
    if (entera && !ganada) return "nobody has won";
    Foto(ganada ? "the-winner" : "the-game-so-far");
    if (ganada) Pulsar_Boton();
    if (ganada) Esperar([] { return QApplication::activeModalWidget() == nullptr; });
    return Salir();
}

}  // namespace corvanda
