#include "ui/estuche.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QStyle>
#include <QWindow>
#include <algorithm>
#include <cmath>

#include "core/bandos.h"
#include "ui/lugares.h"

namespace corvanda {

namespace {

constexpr int CICLO = 10;     // milliseconds of one cycle of the computer's pause
constexpr int CUADRO = 16;    // milliseconds between two pictures of what moves
constexpr int A_MANO = 1000;  // a person's own pace

Integer Boton_De(Qt::MouseButton boton) {
    switch (boton) {
        case Qt::LeftButton:
            return 1;
        case Qt::RightButton:
            return 2;
        case Qt::MiddleButton:
            return 4;
        default:
            return 0;
    }
}

}  // namespace

Estuche::Estuche(const Partida& partida, Escala escala, Estampas& estampas, QWidget* fondo)
    : QWidget(fondo),
      partida(partida),
      escala(escala),
      estampas(estampas),
      mano(trazado, pintura, *this, fondo) {
    setObjectName("Estuche");
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName("Board");
    setAccessibleDescription(
        "The arrow keys choose a place, Space picks up a chip or drops it, Escape puts it back.");
    setFixedSize(escala.Tamano(ANCHO, ALTO));
    renovacion.setSingleShot(true);
    latido.setTimerType(Qt::PreciseTimer);
    reloj.start();
    connect(&renovacion, &QTimer::timeout, this, &Estuche::Renovar);
    connect(&latido, &QTimer::timeout, this, &Estuche::Latir);
    connect(&teclado, &Teclado::tocado, this, [this](QRect area) { update(area); });
    connect(&teclado, &Teclado::elegida, this, &Estuche::Mirar_Bajo);
    connect(&mano, &Mano::cambiada, this, [this](Control ficha, const Lugares& antes) {
        Tocar(ficha);
        Tocar_Luces(antes);
        renovacion.start(0);
    });
    connect(&mano, &Mano::rechazada, this, &Estuche::Rechazar);
    Prepararse();
}

void Estuche::Sentar(Juego& mesa) {
    juego = &mesa;
    mano.Sentar(mesa);
}

// At the start, and whenever the board comes to a screen with other pixels.
void Estuche::Prepararse() {
    preparada = devicePixelRatioF();
    abierta = Hacer_Mano("mano", Qt::OpenHandCursor);
    cerrada = Hacer_Mano("mano_cerrada", Qt::ClosedHandCursor);
    pintura.Preparar();
    renovacion.start(0);
}

QCursor Estuche::Hacer_Mano(const QString& nombre, Qt::CursorShape si_falta) const {
    const int lado = qRound(20 * escala.K());
    const QPixmap dibujo = estampas.Suelta(nombre, lado, preparada);
    if (dibujo.isNull()) return si_falta;
    // On X11 the toolkit hands the hot spot on as it is, to where it counts the picture's pixels.
    const bool en_pixeles = QGuiApplication::platformName() == "xcb";
    const double paso = lado * (en_pixeles ? preparada : 1) / 32;
    return QCursor(dibujo, qRound(16 * paso), qRound(18 * paso));
}

Control Estuche::Bajo(QPointF lugar) const {
    return Control_En(partida, static_cast<Single>(escala.Twips(lugar.x())),
                      static_cast<Single>(escala.Twips(lugar.y())));
}

bool Estuche::Se_Puede_Tomar(Integer lugar) const {
    return mano.Se_Puede_Tomar(lugares::Tope(partida, lugar));
}

// Painting

Pintura::Escena Estuche::Escena() const {
    return {mano.En_El_Aire(), mano.Ocupada(), mano.Destinos(), bajo_la_mano, Piensa()};
}

void Estuche::paintEvent(QPaintEvent* evento) {
    if (devicePixelRatioF() != preparada) Prepararse();
    QPainter pintor(this);
    pintor.setClipRegion(evento->region());
    pintura.Pintar(pintor, evento->rect(), Escena(), secuencia);
    teclado.Pintar(pintor);
}

void Estuche::Tocar(Control control) {
    const Image* imagen = Imagen_De(partida, control);
    if (imagen == nullptr) return;
    update(trazado.Huella(*imagen));
    if (const auto pose = secuencia.Pose_De(control)) update(trazado.Huella(pose->esquina));
}

void Estuche::Tocar_Luces(const Lugares& luces) {
    for (std::size_t i = 0; i < LUGARES; ++i) {
        if (luces[i]) update(pintura.Area_De_Luz(static_cast<Integer>(i)));
    }
}

// The number moves to another chip of a tall stack when one comes or goes.
void Estuche::Refrescar_Pila_De(const Image& ficha) {
    const QPoint medio = trazado.Lugar(ficha).center().toPoint();
    for (Integer lugar = 0; lugar < lugares::CUANTOS; ++lugar) {
        const bool baja = Es_Punto(lugar) && Pila_En(partida, lugar).Cuenta() < 4;
        if (!baja && trazado.Area(lugar).contains(medio)) update(trazado.Area(lugar));
    }
}

void Estuche::Refrescar(Control control, const Image& antes) {
    const Image& ahora = *Imagen_De(partida, control);
    pintura.Cambiar(control);
    update(trazado.Huella(antes));
    update(trazado.Huella(ahora));
    renovacion.start(0);
    emit cambiada(control);
    const bool tirado = control.Nombre == Arreglo::Dado && ahora.ZOrder != antes.ZOrder;
    if (tirado && !Sin_Movimiento()) {
        secuencia.Avanzar(reloj.elapsed());
        secuencia.Tirar(control, Trazado::Esquina(ahora));
        Animar();
    }
    const bool movida = antes.Left != ahora.Left || antes.Top != ahora.Top;
    if (!movida || !Recibe_Presiones(control.Nombre)) return;
    Refrescar_Pila_De(antes);
    Refrescar_Pila_De(ahora);
    mano.Movida(control);
    Mover_A_La_Vista(control, antes);
}

// What moves by itself

// Whether the desktop asks for no animations.
bool Estuche::Sin_Movimiento() const {
    return !isVisible() || style()->styleHint(QStyle::SH_Widget_Animation_Duration) == 0;
}

// How long it takes until the next move, milliseconds.
int Estuche::Pausa() const {
    return juego->Computadora_Juega() ? partida.Velocidad * CICLO : A_MANO;
}

// A chip that the computer moves glides, so that the person can follow it, and so does one of
// either side that is hit.
void Estuche::Mover_A_La_Vista(Control ficha, const Image& antes) {
    if (juego == nullptr || Sin_Movimiento() || partida.Turno == NADIE) return;
    const Image& ahora = *Imagen_De(partida, ficha);
    const QPointF desde = Trazado::Esquina(antes);
    const QPointF hasta = Trazado::Esquina(ahora);
    const double lejos = std::hypot((hasta - desde).x(), (hasta - desde).y());
    const int dura = Secuencia::Vuelo_Para(Pausa(), lejos);
    const bool ajena = Bando_De(ficha).color != partida.Turno;
    secuencia.Avanzar(reloj.elapsed());
    if (ajena && ahora.Left < partida.Tablero[0].Left) {
        secuencia.Comer(ficha, desde, hasta, std::min(dura, Secuencia::COMIDA));
    } else if (!ajena && ficha.Nombre == Arreglo::Cafe && juego->Computadora_Juega()) {
        secuencia.Volar(ficha, desde, hasta, dura);
    } else {
        secuencia.Terminar(ficha);
    }
    Animar();
}

void Estuche::Animar() {
    if (!secuencia.Quieta() && !latido.isActive()) latido.start(CUADRO);
}

void Estuche::Latir() {
    const auto presentes = secuencia.Presentes();
    for (const Control control : presentes) Tocar(control);
    secuencia.Avanzar(reloj.elapsed());
    for (const Control control : presentes) Tocar(control);
    if (!secuencia.Quieta()) return;
    latido.stop();
    update(pintura.Area_De_Los_Dados());
}

void Estuche::Terminar_Movimientos() {
    for (const Control control : secuencia.Presentes()) Tocar(control);
    secuencia.Terminar();
}

// The hand

void Estuche::Iniciar_Arrastre(Control ficha) {
    Terminar_Movimientos();
    mano.Iniciar(ficha);
}

void Estuche::Rechazar(Control ficha) {
    secuencia.Avanzar(reloj.elapsed());
    secuencia.Rechazar(ficha, Trazado::Esquina(*Imagen_De(partida, ficha)), Sin_Movimiento());
    Tocar(ficha);
    Animar();
}

void Estuche::Cancelar_Arrastre() {
    mano.Cancelar();
}

// The place that a drop would be for now.
void Estuche::Mirar_Bajo(Integer lugar) {
    if (lugar == bajo_la_mano) return;
    Lugares cambian;
    for (const Integer cual : {bajo_la_mano, lugar}) {
        if (cual != Mano::NINGUNO) cambian.set(static_cast<std::size_t>(cual));
    }
    bajo_la_mano = lugar;
    Tocar_Luces(cambian & mano.Destinos());
}

void Estuche::hideEvent(QHideEvent* evento) {
    Interrumpir();
    Terminar_Movimientos();
    QWidget::hideEvent(evento);
}

// A chip in the air lies beside the case, not on it, and goes where the case goes.
void Estuche::moveEvent(QMoveEvent* evento) {
    mano.Acompanar(evento->pos() - evento->oldPos());
}

void Estuche::mousePressEvent(QMouseEvent* evento) {
    if (mano.Es(Mano::De::Teclas)) mano.Cancelar();
    if (mano.Ocupada()) return;
    teclado.Ocultar();
    const Control pulsada = Bajo(evento->position());
    if (!Recibe_Presiones(pulsada.Nombre)) return;
    Mirar_Bajo(mano.Lugar_De(pulsada));
    mano.Presionar(pulsada, Boton_De(evento->button()), evento->position(), Mano::De::Raton);
}

// What the keyboard holds is not the mouse's to move, to drop or to put back.
void Estuche::mouseMoveEvent(QMouseEvent* evento) {
    if (!mano.Es(Mano::De::Raton)) {
        Actualizar_Puntero(evento->position());
    } else if (evento->buttons().testFlag(Qt::LeftButton)) {
        mano.Llevar(evento->position());
        Mirar_Bajo(mano.Lugar_De(Bajo(evento->position())));
    } else {
        mano.Cancelar();
    }
}

void Estuche::mouseReleaseEvent(QMouseEvent* evento) {
    const QPointF lugar = evento->position();
    if (mano.Es(Mano::De::Raton) && evento->button() == Qt::LeftButton) {
        mano.Soltar(rect().contains(lugar.toPoint()) ? Bajo(lugar) : Control{});
    }
    Actualizar_Puntero(lugar);
}

// Tab is a key of the board; there is nothing else in the window that it could go to.
bool Estuche::focusNextPrevChild(bool /*adelante*/) {
    return false;
}

void Estuche::keyPressEvent(QKeyEvent* evento) {
    if (!teclado.Tecla(*evento)) QWidget::keyPressEvent(evento);
}

void Estuche::focusOutEvent(QFocusEvent* evento) {
    if (mano.Es(Mano::De::Teclas)) mano.Cancelar();
    QWidget::focusOutEvent(evento);
}

// The pointer and the mark

bool Estuche::Piensa() const {
    return juego != nullptr && juego->Computadora_Juega() && De_Quien_Es_El_Turno(partida) == CAFE;
}

// What lies under the pointer may have changed, or whose turn it is, without a move of the mouse.
void Estuche::Renovar() {
    const Marcas ahora{De_Quien_Es_El_Turno(partida), Piensa(), partida.Dobles};
    if (ahora != vistas) {
        vistas = ahora;
        update(pintura.Area_Del_Turno());
        update(pintura.Area_De_Los_Dados());
    }
    const QPoint lugar = mapFromGlobal(QCursor::pos());
    if (isVisible() && rect().contains(lugar)) Actualizar_Puntero(lugar);
}

void Estuche::Actualizar_Puntero(QPointF lugar) {
    if (mano.Es(Mano::De::Raton)) {
        Poner_Puntero(cerrada);
    } else if (Piensa()) {
        Poner_Puntero(Qt::WaitCursor);
    } else if (mano.Se_Puede_Tomar(Bajo(lugar))) {
        Poner_Puntero(abierta);
    } else {
        Poner_Puntero(Qt::ArrowCursor);
    }
}

// A dialog that was closed by a key has left the toolkit without knowing where the pointer is.
void Estuche::Poner_Puntero(const QCursor& puntero) {
    setCursor(puntero);
    QWindow* ventana = window()->windowHandle();
    if (!underMouse() && ventana != nullptr && window()->isActiveWindow())
        ventana->setCursor(puntero);
}

}  // namespace corvanda
