#include "ui/estuche.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QStyle>
#include <algorithm>
#include <utility>

#include "ui/estuche_accesible.h"
#include "ui/lugares.h"

namespace corvanda {

namespace {

constexpr int REGRESO = 140;      // milliseconds of a refused chip's way back
constexpr qreal ATENUADA = 0.35;  // what is left of a chip at its place while it is dragged

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
      pintura(partida, escala, estampas, *this),
      flotante(fondo) {
    // Before anything is told of this widget, or it would be described as any other.
    EstucheAccesible::Instalar();
    setObjectName("Estuche");
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName("Board");
    setAccessibleDescription(
        "The arrow keys choose a place, Space picks up a chip or drops it, Escape puts it back.");
    setFixedSize(escala.Tamano(ANCHO, ALTO));
    renovacion.setSingleShot(true);
    connect(&renovacion, &QTimer::timeout, this, &Estuche::Renovar_Puntero);
    Prepararse();
}

// At the start, and whenever the board comes to a screen with other pixels.
void Estuche::Prepararse() {
    preparada = devicePixelRatioF();
    mano = Hacer_Mano();
    pintura.Preparar();
    renovacion.start(0);
}

QCursor Estuche::Hacer_Mano() const {
    const int lado = qRound(20 * escala.K());
    const QPixmap dibujo = estampas.Suelta("mano", lado, preparada);
    if (dibujo.isNull()) return Qt::OpenHandCursor;
    // On X11 the toolkit hands the hot spot on as it is, to where it counts the picture's pixels.
    const bool en_pixeles = QGuiApplication::platformName() == "xcb";
    const double paso = lado * (en_pixeles ? preparada : 1) / 32;
    return QCursor(dibujo, qRound(16 * paso), qRound(18 * paso));
}

QRect Estuche::Area(Integer lugar) const {
    const QRectF cuadro = lugares::Cuadro(partida, lugar);
    return escala.Lugar(cuadro.left(), cuadro.top(), cuadro.width(), cuadro.height());
}

int Estuche::Grueso() const {
    return std::max(2, qRound(escala.Pixeles(30)));
}

// Asked for at each painting, because the chip may come to another screen on its way.
FichaFlotante::Estampa Estuche::En_El_Aire(const Image& imagen) const {
    return [this, imagen] { return pintura.Estampa_De(imagen); };
}

Control Estuche::Bajo(QPointF lugar) const {
    return Control_En(partida, static_cast<Single>(escala.Twips(lugar.x())),
                      static_cast<Single>(escala.Twips(lugar.y())));
}

// Painting

void Estuche::paintEvent(QPaintEvent* evento) {
    if (devicePixelRatioF() != preparada) Prepararse();
    QPainter pintor(this);
    pintor.setClipRegion(evento->region());
    pintura.Pintar(pintor, evento->rect(), velada);
    teclado.Pintar(pintor);
}

// The number moves to another chip of a tall stack when one comes or goes.
void Estuche::Refrescar_Pila_De(const Image& ficha) {
    for (Integer p = 0; p < PUNTOS; ++p) {
        const Pila& pila = Pila_En(partida, p);
        const Image& triangulo = partida.Triangle.at(static_cast<std::size_t>(p));
        const bool abajo = ficha.Top > partida.Triangle[23].Top - partida.Cafe[0].Height;
        if (triangulo.Left != ficha.Left || abajo != (p >= 12) || pila.Cuenta() < 4) continue;
        const Arreglo color = Punto_En(partida, p).Owner == CAFE ? Arreglo::Cafe : Arreglo::Blanca;
        for (Integer item = 0; item < pila.Cuenta(); ++item) {
            update(Lugar(*Imagen_De(partida, {color, pila.Ficha(item)})).toAlignedRect());
        }
    }
}

void Estuche::Refrescar(Control control, const Image& antes) {
    const Image& ahora = *Imagen_De(partida, control);
    pintura.Cambiar(control);
    update(Lugar(antes).toAlignedRect());
    update(Lugar(ahora).toAlignedRect());
    renovacion.start(0);
    emit cambiada(control);
    const bool movida = antes.Left != ahora.Left || antes.Top != ahora.Top;
    if (!movida || !Recibe_Presiones(control.Nombre)) return;
    Refrescar_Pila_De(antes);
    Refrescar_Pila_De(ahora);
    if (control == soltando) soltando = {};
    if (control == velada.ficha) flotante.Desaparecer();
    if (control == velada.ficha) Mostrar_Oculta();
    Volar(control, antes);
}

void Estuche::Ocultar(Control ficha, qreal opacidad) {
    Mostrar_Oculta();
    velada = {ficha, opacidad};
    update(Lugar(*Imagen_De(partida, ficha)).toAlignedRect());
}

void Estuche::Mostrar_Oculta() {
    const Control antes = std::exchange(velada, {}).ficha;
    const Image* imagen = Imagen_De(partida, antes);
    if (imagen != nullptr) update(Lugar(*imagen).toAlignedRect());
}

// The drag

void Estuche::Interrumpir() {
    Cancelar_Arrastre();
    Devolver();
}

void Estuche::hideEvent(QHideEvent* evento) {
    Interrumpir();
    QWidget::hideEvent(evento);
}

// A chip in the air lies beside the case, not on it, and goes where the case goes.
void Estuche::moveEvent(QMoveEvent* evento) {
    flotante.Acompanar(evento->pos() - evento->oldPos());
}

void Estuche::mousePressEvent(QMouseEvent* evento) {
    if (teclado.A_La_Vista()) Cancelar_Arrastre();
    if (arrastre) return;
    teclado.Ocultar();
    pulsado = evento->position();
    pulsada = Bajo(pulsado);
    if (Recibe_Presiones(pulsada.Nombre)) emit presionada(pulsada, Boton_De(evento->button()));
}

// The game picks up the top chip of the stack that was pressed, held as if it were the one pressed.
void Estuche::Iniciar_Arrastre(Control ficha) {
    const Image* de_la_pulsada = Imagen_De(partida, pulsada);
    const Image& imagen = *Imagen_De(partida, ficha);
    const QPointF agarre =
        pulsado - Lugar(de_la_pulsada != nullptr ? *de_la_pulsada : imagen).topLeft();
    arrastre = Arrastre{ficha, agarre};
    flotante.Aparecer(En_El_Aire(imagen), pos() + pulsado - agarre);
    Ocultar(ficha, ATENUADA);
    emit en_la_mano(ficha);
}

// What the keyboard holds is not the mouse's to move, to drop or to put back.
void Estuche::mouseMoveEvent(QMouseEvent* evento) {
    if (!arrastre || teclado.A_La_Vista()) {
        Actualizar_Puntero(evento->position());
    } else if (evento->buttons().testFlag(Qt::LeftButton)) {
        Llevar(evento->position());
    } else {
        Cancelar_Arrastre();
    }
}

void Estuche::mouseReleaseEvent(QMouseEvent* evento) {
    const bool suelta = arrastre && !teclado.A_La_Vista();
    if (suelta && evento->button() == Qt::LeftButton) Soltar(evento->position());
    Actualizar_Puntero(evento->position());
}

void Estuche::Llevar(QPointF a) {
    flotante.Llevar(pos() + a - arrastre->agarre);
}

void Estuche::Soltar(QPointF lugar) {
    Dejar(rect().contains(lugar.toPoint()) ? Bajo(lugar) : Control{});
}

// What the drop means is the game's to say. It may take the other side's whole turn to return, so
// the board watches for the chip to move or for a box to open, whichever comes first.
void Estuche::Dejar(Control destino) {
    const Control ficha = arrastre->ficha;
    arrastre.reset();
    soltando = ficha;
    if (destino.Nombre != Arreglo::Ninguno) emit soltada(destino, ficha);
    if (soltando == ficha) Devolver();
}

void Estuche::Cancelar_Arrastre() {
    if (!arrastre) return;
    soltando = arrastre->ficha;
    arrastre.reset();
    Devolver();
}

void Estuche::Devolver() {
    const Control ficha = std::exchange(soltando, Control{});
    const Image* imagen = Imagen_De(partida, ficha);
    if (imagen == nullptr) return;
    emit en_la_mano({});
    const int milisegundos = Sin_Movimiento() ? 0 : REGRESO;
    flotante.Deslizar(pos() + Lugar(*imagen).topLeft(), milisegundos, [this, ficha] {
        flotante.hide();
        if (velada.ficha == ficha) Mostrar_Oculta();
    });
}

// The keyboard

// Tab is a key of the board; there is nothing else in the window that it could go to.
bool Estuche::focusNextPrevChild(bool /*adelante*/) {
    return false;
}

void Estuche::keyPressEvent(QKeyEvent* evento) {
    if (!teclado.Tecla(*evento)) QWidget::keyPressEvent(evento);
}

void Estuche::focusOutEvent(QFocusEvent* evento) {
    if (teclado.A_La_Vista()) Cancelar_Arrastre();
    QWidget::focusOutEvent(evento);
}

bool Estuche::Se_Puede_Tomar(Integer lugar) const {
    return preguntas.se_puede_tomar(lugares::Tope(partida, lugar));
}

void Estuche::Tomar(Control ficha) {
    pulsada = ficha;
    pulsado = Lugar(*Imagen_De(partida, ficha)).center();
    emit presionada(ficha, Boton_De(Qt::LeftButton));
}

// A chip that moved by itself glides from its old place; its new place stays free until it comes.
void Estuche::Volar(Control ficha, const Image& antes) {
    const int milisegundos = preguntas.vuelo_de(ficha);
    if (milisegundos <= 0 || arrastre || Sin_Movimiento()) return;
    const Image& ahora = *Imagen_De(partida, ficha);
    flotante.Aparecer(En_El_Aire(ahora), pos() + Lugar(antes).topLeft());
    Ocultar(ficha, 0);
    flotante.Deslizar(pos() + Lugar(ahora).topLeft(), milisegundos, [this, ficha] {
        flotante.hide();
        if (velada.ficha == ficha) Mostrar_Oculta();
    });
}

// Whether the desktop asks for no animations.
bool Estuche::Sin_Movimiento() const {
    return style()->styleHint(QStyle::SH_Widget_Animation_Duration) == 0;
}

// What lies under the pointer may have changed, or whose turn it is, without a move of the mouse.
void Estuche::Renovar_Puntero() {
    if (underMouse() && !arrastre) Actualizar_Puntero(mapFromGlobal(QCursor::pos()));
}

void Estuche::Actualizar_Puntero(QPointF lugar) {
    if (preguntas.se_puede_tomar(Bajo(lugar))) {
        setCursor(mano);
    } else {
        unsetCursor();
    }
}

}  // namespace corvanda
