#include "ui/estuche.h"

#include <QFont>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QStyle>
#include <algorithm>
#include <array>
#include <cmath>
#include <utility>
#include <vector>

#include "ui/estuche_accesible.h"
#include "ui/lugares.h"

namespace corvanda {

namespace {

constexpr int REGRESO = 140;      // milliseconds of a refused chip's way back
constexpr qreal ATENUADA = 0.35;  // what is left of a chip at its place while it is dragged

const QColor SOMBRA_DE_MADERA(0x4a, 0x28, 0x14);

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

bool Es_Ficha_O_Dado(Picture estampa) {
    return estampa == Picture::Blanca || estampa == Picture::Cafe || estampa >= Picture::Dado1;
}

}  // namespace

Estuche::Estuche(const Partida& partida, const Escala& escala, Estampas& estampas, QWidget* fondo)
    : QWidget(fondo), partida(partida), escala(escala), estampas(estampas), flotante(fondo) {
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
    const int lado = qRound(20 * escala.K());
    const QPixmap dibujo = estampas.Suelta("mano", lado, devicePixelRatioF());
    mano = dibujo.isNull() ? QCursor(Qt::OpenHandCursor)
                           : QCursor(dibujo, lado * 16 / 32, lado * 18 / 32);
    renovacion.setSingleShot(true);
    connect(&renovacion, &QTimer::timeout, this, &Estuche::Renovar_Puntero);
    Preparar_Estampas();
}

void Estuche::Preparar_Estampas() {
    std::vector<Estampas::Pedido> pedidos;
    const qreal ratio = devicePixelRatioF();
    pedidos.push_back({Picture::Estuche, QSize(qRound(width() * ratio), qRound(height() * ratio))});
    const auto pedir = [&](const Image& imagen, Picture estampa) {
        if (estampa != Picture::None) pedidos.push_back({estampa, Pixeles_De(imagen)});
    };
    for (const Image& imagen : partida.Tablero) pedir(imagen, imagen.Shown);
    for (const Image& imagen : partida.Triangle) pedir(imagen, imagen.Shown);
    pedir(partida.Blanca[0], Picture::Blanca);
    pedir(partida.Cafe[0], Picture::Cafe);
    estampas.Preparar(pedidos);
}

// Chips and dice keep one size, so that each is rendered once and sharp; the others meet their
// neighbours, so both of their edges are rounded.
QRectF Estuche::Lugar(const Image& imagen) const {
    const qreal ratio = devicePixelRatioF();
    const auto rejilla = [&](double twips) {
        return std::round(escala.Pixeles(twips) * ratio) / ratio;
    };
    const auto left = static_cast<double>(imagen.Left);
    const auto top = static_cast<double>(imagen.Top);
    const QPointF esquina(rejilla(left), rejilla(top));
    const auto width = static_cast<double>(imagen.Width);
    const auto height = static_cast<double>(imagen.Height);
    if (Es_Ficha_O_Dado(imagen.Shown)) return {esquina, QSizeF(rejilla(width), rejilla(height))};
    return {esquina, QPointF(rejilla(left + width), rejilla(top + height))};
}

QRect Estuche::Area(Integer lugar) const {
    const QRectF cuadro = lugares::Cuadro(partida, lugar);
    return escala.Lugar(cuadro.left(), cuadro.top(), cuadro.width(), cuadro.height());
}

int Estuche::Grueso() const {
    return std::max(2, qRound(escala.Pixeles(30)));
}

QSize Estuche::Pixeles_De(const Image& imagen) const {
    return (Lugar(imagen).size() * devicePixelRatioF()).toSize();
}

QPixmap Estuche::Estampa_De(const Image& imagen) const {
    return estampas.De(imagen.Shown, Pixeles_De(imagen), devicePixelRatioF());
}

Control Estuche::Bajo(QPointF lugar) const {
    return Control_En(partida, static_cast<Single>(escala.Twips(lugar.x())),
                      static_cast<Single>(escala.Twips(lugar.y())));
}

// Painting

void Estuche::paintEvent(QPaintEvent* evento) {
    QPainter pintor(this);
    pintor.setClipRegion(evento->region());
    const qreal ratio = devicePixelRatioF();
    const QSize entero(qRound(width() * ratio), qRound(height() * ratio));
    // Where the edges of the picture let something through, it is not what was painted before.
    pintor.fillRect(evento->rect(), SOMBRA_DE_MADERA);
    pintor.drawPixmap(QPointF(0, 0), estampas.De(Picture::Estuche, entero, ratio));

    struct Capa {
        const Image* imagen;
        Control control;
    };
    std::vector<Capa> capas;
    const QRectF tocado(evento->rect());
    const auto juntar = [&](const auto& miembros, Arreglo nombre) {
        for (std::size_t i = 0; i < miembros.size(); ++i) {
            const Image& imagen = miembros[i];
            if (!imagen.Visible || imagen.Shown == Picture::None) continue;
            if (!Lugar(imagen).intersects(tocado)) continue;
            capas.push_back({&imagen, {nombre, static_cast<Integer>(i)}});
        }
    };
    juntar(partida.Tablero, Arreglo::Tablero);
    juntar(partida.Triangle, Arreglo::Triangle);
    juntar(partida.Adios, Arreglo::Adios);
    juntar(partida.Blanca, Arreglo::Blanca);
    juntar(partida.Cafe, Arreglo::Cafe);
    juntar(partida.Dado, Arreglo::Dado);
    std::sort(capas.begin(), capas.end(), [](const Capa& una, const Capa& otra) {
        return una.imagen->ZOrder < otra.imagen->ZOrder;
    });
    for (const Capa& capa : capas) Pintar(pintor, *capa.imagen, capa.control);
    for (Integer lugar = 0; lugar <= BARRA_BLANCA; ++lugar) Pintar_Cuenta(pintor, lugar);
    teclado.Pintar(pintor);
}

void Estuche::Pintar(QPainter& pintor, const Image& imagen, Control control) const {
    const bool atenuada = control == oculta;
    if (atenuada && opacidad_oculta == 0) return;
    if (atenuada) pintor.setOpacity(opacidad_oculta);
    pintor.drawPixmap(Lugar(imagen).topLeft(), Estampa_De(imagen));
    if (atenuada) pintor.setOpacity(1);
}

// Chips that lie exactly on others hide them, so the top one tells how many there are.
void Estuche::Pintar_Cuenta(QPainter& pintor, Integer lugar) const {
    const Pila& pila = Pila_En(partida, lugar);
    const bool cafe =
        lugar == BARRA_CAFE || (Es_Punto(lugar) && Punto_En(partida, lugar).Owner == CAFE);
    const Arreglo color = cafe ? Arreglo::Cafe : Arreglo::Blanca;
    const Image* tope = Imagen_De(partida, {color, pila.Tope()});
    if (tope == nullptr || Control{color, pila.Tope()} == oculta) return;
    bool tapa = false;
    for (Integer item = 1; item < pila.Cuenta(); ++item) {
        const Image* otra = Imagen_De(partida, {color, pila.Ficha(item)});
        tapa = tapa || (otra->Top == tope->Top && Control{color, pila.Ficha(item)} != oculta);
    }
    if (!tapa) return;

    const QRectF ficha = Lugar(*tope);
    const qreal radio = ficha.height() * 0.27;
    pintor.setPen(Qt::NoPen);
    pintor.setBrush(cafe ? QColor(0x2a, 0x16, 0x0d) : QColor(0xf6, 0xee, 0xd8));
    pintor.drawEllipse(ficha.center(), radio, radio);
    QFont letra = font();
    letra.setPixelSize(std::max(1, qRound(ficha.height() * 0.42)));
    letra.setBold(true);
    pintor.setFont(letra);
    pintor.setPen(cafe ? QColor(0xf6, 0xee, 0xd8) : QColor(0x4a, 0x2c, 0x18));
    pintor.drawText(ficha, Qt::AlignCenter, QString::number(pila.Cuenta()));
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
    update(Lugar(antes).toAlignedRect());
    update(Lugar(ahora).toAlignedRect());
    renovacion.start(0);
    emit cambiada(control);
    const bool movida = antes.Left != ahora.Left || antes.Top != ahora.Top;
    if (!movida || !Recibe_Presiones(control.Nombre)) return;
    Refrescar_Pila_De(antes);
    Refrescar_Pila_De(ahora);
    if (control == soltando) soltando = {};
    if (control == oculta) flotante.Desaparecer();
    if (control == oculta) Mostrar_Oculta();
    Volar(control, antes);
}

void Estuche::Ocultar(Control ficha, qreal opacidad) {
    Mostrar_Oculta();
    oculta = ficha;
    opacidad_oculta = opacidad;
    update(Lugar(*Imagen_De(partida, ficha)).toAlignedRect());
}

void Estuche::Mostrar_Oculta() {
    const Control antes = std::exchange(oculta, Control{});
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
    flotante.Aparecer(Estampa_De(imagen), pos() + pulsado - agarre);
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
        if (oculta == ficha) Mostrar_Oculta();
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
    flotante.Aparecer(Estampa_De(ahora), pos() + Lugar(antes).topLeft());
    Ocultar(ficha, 0);
    flotante.Deslizar(pos() + Lugar(ahora).topLeft(), milisegundos, [this, ficha] {
        flotante.hide();
        if (oculta == ficha) Mostrar_Oculta();
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
