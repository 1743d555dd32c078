#include "ui/pintura.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "core/bandos.h"
#include "ui/lugares.h"
#include "ui/paleta.h"

namespace corvanda {

namespace {

constexpr double ANCHO = 9135;  // twips of the case
constexpr double ALTO = 6075;
const QRectF MARCA(150, 2865, 540, 360);  // between the trays, twips
constexpr double ESPERA = 510;            // side of the place where a hit chip waits
constexpr double ALZADA = 50;             // how much farther the shadow of a chip in the air lies
constexpr double LETRERO = 400;           // width of what is told beside a die
constexpr qreal ATENUADA = 0.35;          // what is left of a chip at its place while it is held

// Within the box of a point, as its picture has them.
constexpr std::pair<double, double> BASE_Y_PUNTA_ARRIBA{8, 2416};
constexpr std::pair<double, double> BASE_Y_PUNTA_ABAJO{2467, 59};

constexpr double CUADRO_EN_EL_AIRE = Trazado::SOMBRA + ALZADA;

bool Es_Dado(const Image& imagen) {
    return imagen.Shown >= Picture::Dado1;
}

bool Es_Ficha(const Image& imagen) {
    return imagen.Shown == Picture::Blanca || imagen.Shown == Picture::Cafe;
}

bool Es_Del_Fondo(Arreglo nombre) {
    return nombre == Arreglo::Tablero || nombre == Arreglo::Triangle;
}

Integer Ganador(const Partida& partida) {
    for (const Bando& bando : BANDOS) {
        if (Pila_En(partida, bando.bandeja).Cuenta() == FICHAS) return bando.color;
    }
    return NADIE;
}

// Whose dice lie there: after the end of a game those of the winner.
Integer Dueno_De_Los_Dados(const Partida& partida) {
    const Integer ganador = Ganador(partida);
    return ganador != NADIE ? ganador : partida.Turno;
}

// The chips of a stack hide one another where one lies exactly on another, and in the trays.
bool Se_Tapan(const Partida& partida, Integer lugar, Control tope) {
    const Pila& pila = Pila_En(partida, lugar);
    if (lugar > BARRA_BLANCA) return pila.Cuenta() > 1;
    const Single top = Imagen_De(partida, tope)->Top;
    for (Integer item = 1; item < pila.Cuenta(); ++item) {
        if (Imagen_De(partida, {tope.Nombre, pila.Ficha(item)})->Top == top) return true;
    }
    return false;
}

}  // namespace

Integer De_Quien_Es_El_Turno(const Partida& partida) {
    const bool hay_dados = partida.Dado[0].Visible || partida.Dado[1].Visible;
    return hay_dados && Ganador(partida) == NADIE ? partida.Turno : NADIE;
}

// Pictures

QSize Pintura::Pixeles_De(const QRectF& lugar) const {
    return (lugar.size() * trazado.Ratio()).toSize();
}

QSize Pintura::Pixeles_Del_Estuche() const {
    return Pixeles_De({{}, QSizeF(trazado.En_Rejilla(ANCHO), trazado.En_Rejilla(ALTO))});
}

QPixmap Pintura::Estampa(const QString& nombre, const QRectF& lugar) {
    return estampas.De(nombre, Pixeles_De(lugar), trazado.Ratio());
}

QString Pintura::Nombre_De(const Image& imagen) const {
    const QString nombre = Estampas::Nombre_De(imagen.Shown);
    const bool de_nogal = Es_Dado(imagen) && Dueno_De_Los_Dados(Estado()) == CAFE;
    return de_nogal ? nombre + "_cafe" : nombre;
}

// The board is still to be dressed, and its pictures are wanted as they will be then.
void Pintura::Preparar() {
    Partida vestida = Estado();
    Vestir(vestida);
    std::vector<Estampas::Pedido> pedidos{{"estuche", Pixeles_Del_Estuche()}};
    const auto pedir = [&](const QString& nombre, const QRectF& lugar) {
        pedidos.push_back({nombre, Pixeles_De(lugar)});
    };
    for (const Image& imagen : vestida.Tablero) pedir(Nombre_De(imagen), trazado.Lugar(imagen));
    for (const Image& imagen : vestida.Triangle) pedir(Nombre_De(imagen), trazado.Lugar(imagen));
    for (const Image& imagen : {vestida.Blanca[0], vestida.Cafe[0]}) {
        pedir(Nombre_De(imagen), trazado.Lugar(imagen));
    }
    pedir("sombra", trazado.Cuadrado({}, Trazado::SOMBRA));
    pedir("turno_nadie", trazado.En_Rejilla(MARCA));
    estampas.Preparar(pedidos);
}

void Pintura::Cambiar(Control control) {
    if (Es_Del_Fondo(control.Nombre)) fondo = {};
}

FichaFlotante::Estampa Pintura::En_El_Aire(const Image& imagen) {
    const qreal ratio = trazado.Ratio();
    const QRectF cuadro = trazado.Cuadrado({}, CUADRO_EN_EL_AIRE);
    QPixmap dibujo(Pixeles_De(cuadro));
    dibujo.setDevicePixelRatio(ratio);
    dibujo.fill(Qt::transparent);
    const QPointF margen(Trazado::HASTA_EL_DISCO, Trazado::HASTA_EL_DISCO);
    QPainter pintor(&dibujo);
    Pintar_Sombra(pintor, margen + QPointF(ALZADA, ALZADA));
    Pintar_Pieza(pintor, imagen, margen);
    return {dibujo, trazado.En_Rejilla(margen)};
}

// The pictures that it is made of are as large as itself and are not needed again.
const QPixmap& Pintura::Fondo() {
    const qreal ratio = trazado.Ratio();
    const QSize pixeles = Pixeles_Del_Estuche();
    if (fondo.size() == pixeles && fondo.devicePixelRatio() == ratio) return fondo;
    QImage lienzo(pixeles, QImage::Format_RGB32);
    lienzo.setDevicePixelRatio(ratio);
    lienzo.fill(paleta::CAOBA);
    QPainter pintor(&lienzo);
    pintor.drawPixmap(QPointF(0, 0), estampas.De("estuche", pixeles, ratio));
    estampas.Olvidar("estuche");
    const auto poner = [&](const auto& miembros) {
        for (const Image& imagen : miembros) {
            if (!imagen.Visible || imagen.Shown == Picture::None) continue;
            const QRectF lugar = trazado.Lugar(imagen);
            pintor.drawPixmap(lugar.topLeft(), Estampa(Nombre_De(imagen), lugar));
        }
        for (const Image& imagen : miembros) estampas.Olvidar(Nombre_De(imagen));
    };
    poner(Estado().Tablero);
    poner(Estado().Triangle);
    pintor.end();
    fondo = QPixmap::fromImage(std::move(lienzo));
    return fondo;
}

// The whole

std::vector<Pintura::Capa> Pintura::Capas(const QRectF& tocado) const {
    std::vector<Capa> capas;
    const auto juntar = [&](const auto& miembros, Arreglo nombre) {
        for (std::size_t i = 0; i < miembros.size(); ++i) {
            const Image& imagen = miembros[i];
            if (!imagen.Visible || imagen.Shown == Picture::None) continue;
            if (!QRectF(trazado.Huella(imagen)).intersects(tocado)) continue;
            capas.push_back({&imagen, {nombre, static_cast<Integer>(i)}});
        }
    };
    juntar(Estado().Adios, Arreglo::Adios);
    juntar(Estado().Blanca, Arreglo::Blanca);
    juntar(Estado().Cafe, Arreglo::Cafe);
    juntar(Estado().Dado, Arreglo::Dado);
    std::sort(capas.begin(), capas.end(), [](const Capa& una, const Capa& otra) {
        return una.imagen->ZOrder < otra.imagen->ZOrder;
    });
    return capas;
}

void Pintura::Pintar(QPainter& pintor, const QRectF& tocado, const Escena& escena,
                     const Secuencia& secuencia) {
    pintor.drawPixmap(QPointF(0, 0), Fondo());
    for (std::size_t i = 0; i < LUGARES; ++i) {
        if (escena.luces[i] && Es_Punto(static_cast<Integer>(i)))
            Pintar_Luz(pintor, static_cast<Integer>(i),
                       escena.bajo_la_mano == static_cast<Integer>(i));
    }
    for (const Capa& capa : Capas(tocado)) {
        if (!secuencia.Pose_De(capa.control)) Pintar_Quieta(pintor, capa, escena);
    }
    pintor.setOpacity(1);
    for (std::size_t i = 0; i < LUGARES; ++i) {
        const auto lugar = static_cast<Integer>(i);
        if (QRectF(trazado.Area(lugar)).intersects(tocado))
            Pintar_Cuenta(pintor, lugar, escena, secuencia);
        if (escena.luces[i]) Pintar_Caida(pintor, lugar, escena);
    }
    Pintar_Turno(pintor, escena);
    Pintar_Dobles(pintor, secuencia);
    // What moves is over all that stands, from wherever it comes.
    const QRectF todo(0, 0, trazado.Pixeles(ANCHO), trazado.Pixeles(ALTO));
    if (secuencia.Quieta()) return;
    for (const Capa& capa : Capas(todo)) {
        const auto pose = secuencia.Pose_De(capa.control);
        if (pose) Pintar_En_Movimiento(pintor, capa, *pose);
    }
}

void Pintura::Pintar_Quieta(QPainter& pintor, const Capa& capa, const Escena& escena) {
    const bool ausente = capa.control == escena.en_el_aire;
    const bool apagado = Es_Dado(*capa.imagen) && Ganador(Estado()) != NADIE;
    pintor.setOpacity(ausente || apagado ? ATENUADA : 1);
    if (Es_Ficha(*capa.imagen) && !ausente) Pintar_Sombra(pintor, Trazado::Esquina(*capa.imagen));
    Pintar_Pieza(pintor, *capa.imagen, Trazado::Esquina(*capa.imagen));
    if (capa.control.Nombre == Arreglo::Adios) Pintar_Espera(pintor, capa.control.Index);
}

// A tray that is shown covers a part of the place beside it, where hit chips of the same or of the
// other side wait.
void Pintura::Pintar_Espera(QPainter& pintor, Integer bandeja) {
    const Esquina de_ficha =
        Esquina_De_Barra(Estado(), BANDOS.at(static_cast<std::size_t>(bandeja)));
    const QPointF margen(Trazado::HASTA_EL_DISCO, Trazado::HASTA_EL_DISCO);
    const QPointF esquina(static_cast<double>(de_ficha.Left), static_cast<double>(de_ficha.Top));
    const QRectF lugar = trazado.Cuadrado(esquina - margen, ESPERA);
    pintor.drawPixmap(lugar.topLeft(), Estampa("espera", lugar));
}

void Pintura::Pintar_En_Movimiento(QPainter& pintor, const Capa& capa,
                                   const Secuencia::Pose& pose) {
    if (pose.opacidad <= 0) return;
    pintor.save();
    pintor.setOpacity(pose.opacidad);
    if (Es_Ficha(*capa.imagen)) Pintar_Sombra(pintor, pose.esquina);
    if (pose.giro != 0) {
        const QPointF medio = trazado.Cuadrado(pose.esquina, Trazado::DADO).center();
        pintor.setRenderHint(QPainter::SmoothPixmapTransform);
        pintor.translate(medio);
        pintor.rotate(pose.giro);
        pintor.translate(-medio);
    }
    Pintar_Pieza(pintor, *capa.imagen, pose.esquina);
    if (pose.rechazo) {
        const QRectF disco = trazado.Cuadrado(pose.esquina, Trazado::DISCO);
        const qreal ancho = disco.width() / 11;
        pintor.setRenderHint(QPainter::Antialiasing);
        pintor.setBrush(Qt::NoBrush);
        for (const auto& [color, grueso] :
             {std::pair{paleta::MARFIL, 1.7 * ancho}, std::pair{paleta::RECHAZO, ancho}}) {
            pintor.setPen(QPen(color, grueso));
            pintor.drawEllipse(disco);
        }
    }
    pintor.restore();
}

void Pintura::Pintar_Pieza(QPainter& pintor, const Image& imagen, QPointF esquina) {
    const QRectF lugar = Es_Dado(imagen)    ? trazado.Cuadrado(esquina, Trazado::DADO)
                         : Es_Ficha(imagen) ? trazado.Cuadrado(esquina, Trazado::DISCO)
                                            : trazado.Lugar(imagen);
    pintor.drawPixmap(lugar.topLeft(), Estampa(Nombre_De(imagen), lugar));
}

void Pintura::Pintar_Sombra(QPainter& pintor, QPointF esquina) {
    const QPointF margen(Trazado::HASTA_EL_DISCO, Trazado::HASTA_EL_DISCO);
    const QRectF lugar = trazado.Cuadrado(esquina - margen, Trazado::SOMBRA);
    pintor.drawPixmap(lugar.topLeft(), Estampa("sombra", lugar));
}

// What is told

void Pintura::Pintar_Texto(QPainter& pintor, const QRectF& donde, const QString& texto,
                           const QColor& tinta) const {
    QFont letra = pintor.font();
    letra.setPixelSize(std::max(1, qRound(donde.height() * 0.8)));
    letra.setBold(true);
    pintor.setFont(letra);
    pintor.setPen(tinta);
    pintor.drawText(donde, Qt::AlignCenter, texto);
}

// On the top chip of a stack in which some are hidden, in the other side's colour.
void Pintura::Pintar_Cuenta(QPainter& pintor, Integer lugar, const Escena& escena,
                            const Secuencia& secuencia) const {
    const Control tope = lugares::Tope(Estado(), lugar);
    const bool falta = tope.Nombre == Arreglo::Ninguno || tope == escena.en_el_aire;
    if (falta || secuencia.Pose_De(tope) || !Se_Tapan(Estado(), lugar, tope)) return;
    const bool cafe = tope.Nombre == Arreglo::Cafe;
    const QRectF disco = trazado.Lugar(*Imagen_De(Estado(), tope));
    const qreal radio = disco.height() * 0.36;
    const QColor placa = cafe ? paleta::MARFIL : paleta::NOGAL;
    const QColor tinta = cafe ? paleta::NOGAL : paleta::MARFIL;
    pintor.setRenderHint(QPainter::Antialiasing);
    pintor.setPen(QPen(tinta, disco.height() * 0.03));
    pintor.setBrush(placa);
    pintor.drawEllipse(disco.center(), radio, radio);
    QRectF letras(0, 0, disco.width(), disco.height() * 0.66);
    letras.moveCenter(disco.center());
    Pintar_Texto(pintor, letras, QString::number(Pila_En(Estado(), lugar).Cuenta()), tinta);
}

QRect Pintura::Area_Del_Turno() const {
    return trazado.En_Rejilla(MARCA).toAlignedRect();
}

// The diamond between the trays; with an hourglass while the computer thinks.
void Pintura::Pintar_Turno(QPainter& pintor, const Escena& escena) {
    const Integer turno = De_Quien_Es_El_Turno(Estado());
    const QRectF lugar = trazado.En_Rejilla(MARCA);
    const QString nombre = turno == BLANCA ? "blanca" : turno == CAFE ? "cafe" : "nadie";
    pintor.drawPixmap(lugar.topLeft(), Estampa("turno_" + nombre, lugar));
    if (!escena.piensa) return;
    const qreal ancho = lugar.height() * 0.17;
    const qreal alto = lugar.height() * 0.24;
    const QPointF medio = lugar.center();
    QPainterPath ampolla(medio - QPointF(ancho, alto));
    ampolla.lineTo(medio + QPointF(ancho, -alto));
    ampolla.lineTo(medio + QPointF(-ancho, alto));
    ampolla.lineTo(medio + QPointF(ancho, alto));
    ampolla.closeSubpath();
    pintor.setRenderHint(QPainter::Antialiasing);
    pintor.setPen(QPen(paleta::NOGAL, ancho * 0.45, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    pintor.setBrush(paleta::LUZ);
    pintor.drawPath(ampolla);
    pintor.setPen(QPen(paleta::MARFIL, ancho * 0.16, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    pintor.drawPath(ampolla);
}

QRect Pintura::Area_De_Los_Dados() const {
    const double ancho = 2 * (Trazado::JUNTO_A_BISAGRA + Trazado::DADO + LETRERO + 60);
    const QPointF esquina(Trazado::BISAGRA - ancho / 2, Trazado::ALTURA_DE_DADOS);
    const QRectF franja(trazado.En_Rejilla(esquina),
                        QSizeF(trazado.Pixeles(ancho), trazado.Pixeles(Trazado::DADO)));
    return franja.toAlignedRect();
}

// After a double the first die pays more than one move; beside both stands how many are left.
void Pintura::Pintar_Dobles(QPainter& pintor, const Secuencia& secuencia) const {
    if (Estado().Dobles == 0 || De_Quien_Es_El_Turno(Estado()) == NADIE) return;
    for (const Integer cual : {Integer{0}, Integer{1}}) {
        const Image& dado = Estado().Dado.at(static_cast<std::size_t>(cual));
        if (!dado.Visible || secuencia.Pose_De({Arreglo::Dado, cual})) continue;
        const QRectF junto = trazado.Lugar(dado);
        QRectF placa(0, 0, trazado.Pixeles(LETRERO), junto.height() * 0.62);
        const qreal lejos = junto.width() / 2 + placa.width() / 2 + trazado.Pixeles(40);
        placa.moveCenter(junto.center() + QPointF(cual == 0 ? -lejos : lejos, 0));
        pintor.setRenderHint(QPainter::Antialiasing);
        pintor.setPen(Qt::NoPen);
        pintor.setBrush(paleta::NOGAL);
        pintor.drawRoundedRect(placa, placa.height() / 4, placa.height() / 4);
        const int veces = cual == 0 ? Estado().Dobles + 1 : 1;
        Pintar_Texto(pintor, placa, QString::fromUtf8("×%1").arg(veces), paleta::MARFIL);
    }
}

// Where the chip in the hand may go

QRect Pintura::Area_De_Luz(Integer lugar) const {
    return trazado.Marco(lugar) | trazado.Huella(lugares::Caida(Estado(), lugar));
}

void Pintura::Pintar_Luz(QPainter& pintor, Integer lugar, bool fuerte) const {
    const QPointF esquina = Trazado::Esquina(Estado().Triangle.at(static_cast<std::size_t>(lugar)));
    const auto [base, punta] = lugar < PUNTOS / 2 ? BASE_Y_PUNTA_ARRIBA : BASE_Y_PUNTA_ABAJO;
    const auto en = [&](double x, double y) { return trazado.En_Rejilla(esquina + QPointF(x, y)); };
    QPainterPath punto(en(12, base));
    punto.lineTo(en(438, base));
    punto.lineTo(en(225, punta));
    punto.closeSubpath();
    QColor brillo = paleta::LUZ;
    brillo.setAlpha(fuerte ? 190 : 95);
    pintor.setRenderHint(QPainter::Antialiasing);
    pintor.setPen(QPen(paleta::LUZ, trazado.Pixeles(fuerte ? 36 : 24), Qt::SolidLine, Qt::FlatCap,
                       Qt::BevelJoin));
    pintor.setBrush(brillo);
    pintor.drawPath(punto);
}

// A ring where the chip would come to lie; a tray is lit as a whole.
void Pintura::Pintar_Caida(QPainter& pintor, Integer lugar, const Escena& escena) const {
    const bool fuerte = escena.bajo_la_mano == lugar;
    QColor brillo = paleta::LUZ;
    brillo.setAlpha(!Es_Punto(lugar) ? 30 : fuerte ? 130 : 45);  // the chips in a tray are read
    pintor.setRenderHint(QPainter::Antialiasing);
    const qreal ancho = trazado.Pixeles(fuerte ? 50 : 32);
    const QRectF cuadro = Es_Punto(lugar)
                              ? trazado.Cuadrado(lugares::Caida(Estado(), lugar), Trazado::DISCO)
                              : QRectF(trazado.Area(lugar));
    const QRectF dentro = cuadro.adjusted(ancho, ancho, -ancho, -ancho);
    pintor.setBrush(brillo);
    for (const auto& [color, grueso] :
         {std::pair{paleta::NOGAL, 1.8 * ancho}, std::pair{paleta::LUZ, ancho}}) {
        pintor.setPen(QPen(color, grueso));
        if (Es_Punto(lugar)) {
            pintor.drawEllipse(dentro);
        } else {
            pintor.drawRoundedRect(dentro, ancho, ancho);
        }
        pintor.setBrush(Qt::NoBrush);
    }
}

}  // namespace corvanda
