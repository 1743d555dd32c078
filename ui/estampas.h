// The game's pictures: SVG files in the program's folder, each rendered once for a size, so that
// they are crisp on every screen. Every picture of every window is drawn here. One whose file is
// missing or damaged is replaced by a plain shape of the same size and meaning, so that the game
// can be played without.
#pragma once

#include <QHash>
#include <QImage>
#include <QPixmap>
#include <QSize>
#include <QString>
#include <future>
#include <utility>
#include <vector>

#include "runtime/image.h"

namespace corvanda {

class Estampas {
  public:
    /// A picture in one size, in device pixels.
    struct Pedido {
        QString nombre;
        QSize tamano;
    };

    /// The name of an image's picture, which is that of its file.
    static QString Nombre_De(Picture estampa);
    /// Draws the SVG file `archivo` so that it fills the size (dice stay square); null when it
    /// cannot be read. May be called in any thread.
    static QImage Dibujar(const QString& archivo, QSize tamano);

    /// `carpeta` is the folder of the SVG files.
    explicit Estampas(QString carpeta) : carpeta(std::move(carpeta)) {}
    ~Estampas();
    Estampas(const Estampas&) = delete;
    Estampas& operator=(const Estampas&) = delete;

    /// Begins to render pictures in the background; asking for one waits for it alone.
    void Preparar(const std::vector<Pedido>& pedidos);

    /// The picture in device pixels, to be drawn at that size divided by the ratio. It is kept.
    QPixmap De(const QString& nombre, QSize tamano, qreal ratio);
    QPixmap De(Picture estampa, QSize tamano, qreal ratio) {
        return De(Nombre_De(estampa), tamano, ratio);
    }
    /// Keeps none of the sizes of a picture that is not needed for a while.
    void Olvidar(const QString& nombre);

    /// A picture that is wanted once, square; null when its file cannot be read.
    QPixmap Suelta(const QString& nombre, int lado, qreal ratio) const;

  private:
    using Clave = std::pair<QString, quint64>;

    QString carpeta;
    QHash<Clave, QPixmap> hechas;
    QHash<Clave, std::shared_future<QImage>> en_camino;
};

}  // namespace corvanda
