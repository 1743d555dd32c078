#include "tools/laminas/mesa.h"

#include <QWidget>
#include <cmath>

#include "bench/mudo.h"
#include "ui/estuche.h"
#include "ui/lugares.h"
#include "ui/pintura.h"

using namespace corvanda;

namespace laminas {

namespace {

/// A screen on which the board is drawn as large as a picture wants it.
class Lienzo final : public QWidget {
  public:
    Lienzo(const Escala& escala, double ratio) : ratio(ratio) {
        resize(escala.Tamano(Estuche::ANCHO, Estuche::ALTO));
    }

  protected:
    int metric(PaintDeviceMetric medida) const override {
        if (medida == PdmDevicePixelRatio) return static_cast<int>(ratio);
        if (medida == PdmDevicePixelRatioScaled) {
            return static_cast<int>(ratio * devicePixelRatioFScale());
        }
        return QWidget::metric(medida);
    }

  private:
    double ratio;
};

// On a bar chips lie on each other, in a tray each a fifteenth of the room further; on the bar
// there is no room.
void Apartar(Partida& partida, Control ficha, Integer lugar) {
    const QRectF sitio = lugares::Cuadro(partida, lugar);
    Image& imagen = *Imagen_De(partida, ficha);
    const auto paso = static_cast<Single>((sitio.height() - imagen.Height) / 15);
    const auto altura = static_cast<Single>(Pila_En(partida, lugar).Cuenta()) * paso;
    imagen.Left = static_cast<Single>(sitio.center().x()) - imagen.Width / 2;
    imagen.Top = static_cast<Single>(sitio.top()) + altura;
    imagen.ZOrder = ++partida.Frente;
    Pila_En(partida, lugar).Poner(ficha.Index);
    if (lugar != BANDEJA_BLANCA && lugar != BANDEJA_CAFE) return;
    imagen.Enabled = false;
    (lugar == BANDEJA_CAFE ? partida.Altura_Cafe : partida.Altura_Blanca) =
        static_cast<Integer>(altura + paso);
}

void Poner_Fichas(Juego& juego, Partida& partida, Integer color, const std::vector<Grupo>& grupos) {
    Integer ficha = 0;
    for (const Grupo& grupo : grupos) {
        for (int i = 0; i < grupo.cuantas; ++i, ++ficha) {
            if (Es_Punto(grupo.lugar)) {
                juego.Mover(color, ficha, grupo.lugar);
            } else {
                const Arreglo nombre = color == BLANCA ? Arreglo::Blanca : Arreglo::Cafe;
                Apartar(partida, {nombre, ficha}, grupo.lugar);
            }
        }
    }
}

void Poner_Dado(Partida& partida, std::size_t cual, Integer valor) {
    (cual == 0 ? partida.Dado1 : partida.Dado2) = valor;
    Image& dado = partida.Dado.at(cual);
    dado.Visible = valor != 0;
    if (dado.Visible) dado.Shown = partida.Dados.at(static_cast<std::size_t>(valor - 1)).Shown;
}

// A tray is open when all chips of its side are in their home board or have left it.
void Abrir_Bandeja(Partida& partida, std::size_t cual, bool abierta) {
    partida.Adios.at(cual).Visible = abierta;
    (cual == 0 ? partida.Cafe_En_Casa : partida.Blanca_En_Casa) = abierta ? True : False;
}

Partida Poner(const Posicion& posicion) {
    Partida partida = Diseno();
    Mudo mudo(0);
    Juego juego(partida, mudo.Todos());
    juego.Cargar_Controles();
    juego.Vestir_Tablero();
    juego.Ordenar();
    // Every point becomes as the start of a game leaves an empty one of its row.
    const Punto arriba = Punto_En(partida, 1);
    const Punto abajo = Punto_En(partida, 22);
    for (Integer p = 0; p < PUNTOS; ++p) Punto_En(partida, p) = p < 12 ? arriba : abajo;
    for (Pila& pila : partida.LST) pila.Vaciar();
    partida.Origen = ORIGEN_COLOCACION;
    Poner_Fichas(juego, partida, BLANCA, posicion.blancas);
    Poner_Fichas(juego, partida, CAFE, posicion.cafes);
    partida.Origen = 0;
    Abrir_Bandeja(partida, 0, Pila_En(partida, BANDEJA_CAFE).Cuenta() > 0);
    Abrir_Bandeja(partida, 1, Pila_En(partida, BANDEJA_BLANCA).Cuenta() > 0);
    for (const std::size_t cual : {0, 1}) Poner_Dado(partida, cual, posicion.dados.at(cual));
    return partida;
}

}  // namespace

QImage Hoja(QSizeF tamano, const QColor& color) {
    // Whole pixels of the page, so that none is made of parts of others.
    QImage hoja(QSize(qRound(tamano.width()), qRound(tamano.height())) * RATIO,
                QImage::Format_RGB32);
    hoja.setDevicePixelRatio(RATIO);
    hoja.fill(color);
    return hoja;
}

QImage Dibujar(const Lamina& lamina, Estampas& estampas) {
    const Partida partida = Poner(lamina.posicion);
    const auto faltas = Faltas(partida);
    for (const std::string& falta : faltas) qWarning("%s: %s", lamina.nombre, falta.data());
    if (!faltas.empty()) return {};

    const Escala escala;
    const Lienzo lienzo(escala, RATIO * lamina.tamano);
    const double ratio = lienzo.devicePixelRatioF();
    Pintura pintura(partida, escala, estampas, lienzo);
    const double por_twip = ratio / RATIO / escala.Twips_Por_Pixel();
    QImage hoja = Hoja(lamina.recorte.size() * por_twip, Qt::black);

    // The board in its own pixels, begun at a whole one of the picture's.
    const QPointF esquina = lamina.recorte.topLeft() * por_twip * RATIO;
    const QPointF entera(std::round(esquina.x()), std::round(esquina.y()));
    hoja.setDevicePixelRatio(ratio);
    QPainter pintor(&hoja);
    pintor.translate(-entera / ratio);
    pintura.Pintar(pintor, QRectF(lienzo.rect()), {});
    pintor.end();

    hoja.setDevicePixelRatio(RATIO);
    pintor.begin(&hoja);
    pintor.setRenderHint(QPainter::Antialiasing);
    pintor.translate(-entera / RATIO);
    for (const Marca& marca : lamina.marcas) Marcar(pintor, marca, por_twip);
    return hoja;
}

}  // namespace laminas
