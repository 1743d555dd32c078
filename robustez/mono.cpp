#include "robustez/mono.h"

#include <QApplication>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QThread>
#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>

// The toolkit's own test functions send through these, too: as if the window system had sent it.
Q_GUI_EXPORT void qt_handleMouseEvent(QWindow* window, const QPointF& local, const QPointF& global,
                                      Qt::MouseButtons state, Qt::MouseButton button,
                                      QEvent::Type type, Qt::KeyboardModifiers mods, int timestamp);
Q_GUI_EXPORT void qt_handleKeyEvent(QWindow* window, QEvent::Type type, int key,
                                    Qt::KeyboardModifiers mods, const QString& text, bool repeat,
                                    ushort count);

namespace corvanda {

namespace {

constexpr int ACTOS_POR_PASO = 6;
constexpr int PROFUNDIDAD_MAXIMA = 60;
constexpr int ESPERAS_MAXIMAS = 2000;

struct Combinacion {
    int tecla;
    Qt::KeyboardModifiers con;
};

const std::array<Combinacion, 22> TECLAS{{
    {Qt::Key_Escape, {}},
    {Qt::Key_Return, {}},
    {Qt::Key_Enter, Qt::KeypadModifier},
    {Qt::Key_Space, {}},
    {Qt::Key_Tab, {}},
    {Qt::Key_Backtab, Qt::ShiftModifier},
    {Qt::Key_Left, {}},
    {Qt::Key_Right, {}},
    {Qt::Key_Up, {}},
    {Qt::Key_Down, {}},
    {Qt::Key_PageUp, {}},
    {Qt::Key_PageDown, {}},
    {Qt::Key_Home, {}},
    {Qt::Key_End, {}},
    {Qt::Key_F1, {}},
    {Qt::Key_F9, {}},
    {Qt::Key_F10, {}},
    {Qt::Key_G, Qt::AltModifier},
    {Qt::Key_O, Qt::AltModifier},
    {Qt::Key_X, Qt::AltModifier},
    {Qt::Key_Delete, {}},
    {Qt::Key_A, {}},
}};

}  // namespace

Mono::Mono(Aplicacion& programa, std::uint32_t semilla, long actos, Cuentas& cuentas)
    : programa(programa), semilla(semilla), fin(actos), cuentas(cuentas), suerte(semilla) {
    ++cuentas.vidas;
    constexpr std::array<Integer, 8> VELOCIDADES{0, 0, 0, 1, 1, 3, 20, 200};
    programa.Estado().Velocidad = VELOCIDADES.at(static_cast<std::size_t>(Hasta(8)));
    Dar_Cuerda();
}

void Mono::Dar_Cuerda() {
    // One loop may let several of them come in a row; a person can do one thing between two turns
    // of the loop.
    const auto nivel = static_cast<int>(relojes.size());
    QTimer& reloj = relojes.emplace_back();
    connect(&reloj, &QTimer::timeout, this, [this, nivel] {
        if (nivel == profundidad) Paso();
    });
    reloj.start(0);
}

void Mono::Fallar(const QString& falta) const {
    std::fprintf(stderr, "mono: seed %u, event %ld: %s\nmono: %s\n", semilla, hechos,
                 qPrintable(falta), Texto(programa.Estado()).c_str());
    std::abort();
}

void Mono::Paso() {
    if (++profundidad > PROFUNDIDAD_MAXIMA) Fallar("handlers inside handlers without an end");
    if (relojes.size() <= static_cast<std::size_t>(profundidad)) Dar_Cuerda();
    const QWidget* caja = QApplication::activeModalWidget();
    const int actos = 1 + Hasta(ACTOS_POR_PASO);
    for (int i = 0; i < actos && hechos < fin; ++i) {
        ++hechos;
        ++cuentas.actos;
        Actuar();
        Revisar();
        // What waited for a box goes on before the next event comes.
        if (QApplication::activeModalWidget() != caja) break;
    }
    --profundidad;
    // Asked once, however deep it is: asked again, the program ends on the spot.
    if (hechos < fin || !relojes.front().isActive()) return;
    for (QTimer& reloj : relojes) reloj.stop();
    std::raise(SIGTERM);
}

// What the game itself promises, and what a person would notice.
void Mono::Revisar() {
    const Juego& juego = programa.Ventana().Mesa();
    cargada = cargada || programa.Ventana().isVisible();
    if (cargada && !juego.A_Medio_Tirar()) {
        for (const std::string& falta : Faltas(programa.Estado())) {
            Fallar(QString::fromStdString(falta));
        }
    }
    const bool ocioso = profundidad == 1 && QThread::currentThread()->loopLevel() == 1;
    const bool reloj = QGuiApplication::overrideCursor() != nullptr;
    esperas_con_reloj = ocioso && reloj ? esperas_con_reloj + 1 : 0;
    if (esperas_con_reloj > ESPERAS_MAXIMAS) Fallar("the hourglass stays");
}

void Mono::Actuar() {
    QWindow* ventana = Destino();
    if (ventana == nullptr) return;
    const bool modal = QApplication::activeModalWidget() != nullptr;
    if (en_mano && Una_De(3)) return Soltar();
    if (modal && !Una_De(3)) return Boton();
    switch (Hasta(16)) {
        case 0:
        case 1:
            return Tecla(ventana);
        case 2:
            return Clic(ventana);
        case 3:
        case 4:
            return Mover_Raton(ventana);
        case 5:
            return Una_De(12) ? Menu() : Mover_Raton(ventana);
        case 6:
            return Una_De(20) ? Ventana() : Jugar();
        case 7:
            return Una_De(60) ? Cerrar_Ventana() : Jugar();
        default:
            return modal ? Boton() : Jugar();
    }
}

// Where a person could act now: the popup, else the box in front, else any window.
QWindow* Mono::Destino() {
    if (QWidget* popup = QApplication::activePopupWidget()) return popup->windowHandle();
    if (QWidget* modal = QApplication::activeModalWidget()) {
        if (!Una_De(10)) return modal->windowHandle();
    }
    QList<QWindow*> visibles;
    for (QWindow* ventana : QGuiApplication::topLevelWindows()) {
        if (ventana->isVisible()) visibles.push_back(ventana);
    }
    return visibles.isEmpty() ? nullptr : visibles[Hasta(static_cast<int>(visibles.size()))];
}

void Mono::Raton(QWindow* ventana, QPointF lugar, QEvent::Type tipo, Qt::MouseButton boton) {
    if (tipo == QEvent::MouseButtonPress) botones |= boton;
    if (tipo == QEvent::MouseButtonRelease) botones &= ~Qt::MouseButtons(boton);
    const QPointF global = lugar + ventana->position();
    const auto cuando = static_cast<int>(hechos * 37);
    qt_handleMouseEvent(ventana, lugar, global, botones, boton, tipo, Qt::NoModifier, cuando);
}

void Mono::Pulsar(QWindow* ventana, int tecla, Qt::KeyboardModifiers con) {
    const QPointer<QWindow> vive(ventana);
    const bool letra = tecla < 0x80 && !(con & (Qt::ControlModifier | Qt::AltModifier));
    const QString texto = letra ? QString(QChar(tecla)).toLower() : QString();
    qt_handleKeyEvent(ventana, QEvent::KeyPress, tecla, con, texto, Una_De(8), 1);
    if (vive) qt_handleKeyEvent(ventana, QEvent::KeyRelease, tecla, con, texto, false, 1);
}

QPointF Mono::Punto_Del_Tablero(Lugar lugar) const {
    FrmPrincipal& ventana = programa.Ventana();
    const Escala escala = ventana.Medida();
    const QPointF punto(escala.Pixeles(lugar.x), escala.Pixeles(lugar.y));
    return ventana.Tablero().mapTo(&ventana, punto);
}

// A move as the rules want it, or with a slip; the chip may stay in the hand for a while.
void Mono::Jugar() {
    FrmPrincipal& ventana = programa.Ventana();
    if (!ventana.isVisible() || en_mano || QApplication::activeModalWidget() != nullptr) return;
    const Partida& partida = programa.Estado();
    if (partida.Jugando == False) return Una_De(10) ? Menu() : Clic(ventana.windowHandle());
    const Jugada jugada = Elegir(partida);
    if (jugada.clase == Jugada::Clase::Pasar) {
        return Pulsar(ventana.windowHandle(), Qt::Key_F9, Qt::NoModifier);
    }
    ++cuentas.jugadas;
    meta = Meta(partida, jugada);
    if (Una_De(12)) meta = {static_cast<double>(Hasta(9135)), static_cast<double>(Hasta(6075))};
    en_mano = true;
    const QPointF desde = Punto_Del_Tablero(Agarre(partida, jugada));
    Raton(ventana.windowHandle(), desde, QEvent::MouseButtonPress, Qt::LeftButton);
    if (!Una_De(4)) Soltar();
}

void Mono::Soltar() {
    QWindow* ventana = programa.Ventana().windowHandle();
    if (!std::exchange(en_mano, false) || ventana == nullptr) return;
    const QPointF hasta = Punto_Del_Tablero(meta);
    Raton(ventana, hasta, QEvent::MouseMove, Qt::NoButton);
    const Byte antes = static_cast<Byte>(programa.Estado().Jugando != False);
    Raton(ventana, hasta, QEvent::MouseButtonRelease, Qt::LeftButton);
    if (antes != 0 && programa.Estado().Jugando == False && programa.Estado().Turno == BLANCA) {
        ++cuentas.partidas_ganadas;
    }
}

void Mono::Mover_Raton(QWindow* ventana) {
    const QPointF lugar(Hasta(ventana->width() + 1), Hasta(ventana->height() + 1));
    Raton(ventana, lugar, QEvent::MouseMove, Qt::NoButton);
}

void Mono::Clic(QWindow* ventana) {
    constexpr std::array<Qt::MouseButton, 4> BOTONES{Qt::LeftButton, Qt::LeftButton,
                                                     Qt::RightButton, Qt::MiddleButton};
    const Qt::MouseButton boton = BOTONES.at(static_cast<std::size_t>(Hasta(4)));
    const QPointF lugar(Hasta(ventana->width() + 1), Hasta(ventana->height() + 1));
    const QPointer<QWindow> vive(ventana);
    Raton(ventana, lugar, QEvent::MouseButtonPress, boton);
    if (vive && !Una_De(5)) Raton(ventana, lugar, QEvent::MouseButtonRelease, boton);
}

void Mono::Tecla(QWindow* ventana) {
    const Combinacion& una = TECLAS.at(static_cast<std::size_t>(Hasta(int(TECLAS.size()))));
    Pulsar(ventana, una.tecla, una.con);
}

// Some button of the box in front. The question whether to quit is mostly answered with No.
void Mono::Boton() {
    QWidget* modal = QApplication::activeModalWidget();
    if (modal == nullptr || modal->windowHandle() == nullptr) return;
    QList<QPushButton*> botones_de_la_caja;
    for (QPushButton* boton : modal->findChildren<QPushButton*>()) {
        if (boton->isVisible()) botones_de_la_caja.push_back(boton);
    }
    if (botones_de_la_caja.isEmpty() || Una_De(20)) return Tecla(modal->windowHandle());
    const auto cuantos = static_cast<int>(botones_de_la_caja.size());
    const QPushButton* boton = botones_de_la_caja[Hasta(cuantos)];
    if (boton->text() == "&Yes" && !Una_De(200)) return;
    const QPointer<QWindow> ventana(modal->windowHandle());
    const QPointF lugar = boton->mapTo(modal, QPointF(boton->rect().center()));
    Raton(ventana, lugar, QEvent::MouseButtonPress, Qt::LeftButton);
    if (ventana) Raton(ventana, lugar, QEvent::MouseButtonRelease, Qt::LeftButton);
}

// Opens a menu, whose entries are then hit like any other place; or takes a shortcut.
void Mono::Menu() {
    FrmPrincipal& ventana = programa.Ventana();
    QWindow* manija = ventana.windowHandle();
    if (manija == nullptr || !ventana.isVisible()) return;
    if (Una_De(2)) {
        const bool computadora = Una_De(2);
        return Pulsar(manija, computadora ? Qt::Key_C : Qt::Key_J, Qt::ControlModifier);
    }
    const QList<QAction*> titulos = ventana.menuBar()->actions();
    QAction* titulo = titulos[Hasta(static_cast<int>(titulos.size()))];
    const QPoint centro = ventana.menuBar()->actionGeometry(titulo).center();
    const QPointF lugar = ventana.menuBar()->mapTo(&ventana, QPointF(centro));
    Raton(manija, lugar, QEvent::MouseButtonPress, Qt::LeftButton);
    Raton(manija, lugar, QEvent::MouseButtonRelease, Qt::LeftButton);
}

// What window managers do.
void Mono::Ventana() {
    FrmPrincipal& ventana = programa.Ventana();
    if (!ventana.isVisible()) return;
    switch (Hasta(6)) {
        case 0:
            return ventana.resize(200 + Hasta(1800), 100 + Hasta(1200));
        case 1:
            return ventana.showMinimized();
        case 2:
            return ventana.showMaximized();
        case 3:
            return ventana.showNormal();
        case 4:
            return ventana.move(Hasta(800) - 400, Hasta(600) - 300);
        default:
            QEvent fuera(QEvent::WindowDeactivate);
            QCoreApplication::sendEvent(&ventana, &fuera);
    }
}

void Mono::Cerrar_Ventana() {
    QWidget* modal = QApplication::activeModalWidget();
    QWidget* ventana = modal != nullptr ? modal : &programa.Ventana();
    if (ventana->isVisible()) ventana->close();
}

}  // namespace corvanda
