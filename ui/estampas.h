// The game's pictures: SVG files in the program's folder, each rendered once for a size and a
// device pixel ratio, so that they are crisp on every screen. A picture whose file is missing or
// damaged is replaced by a plain shape of the same size and meaning, so that the game can be played
// without.
#pragma once

#include <QHash>
#include <QImage>
#include <QPixmap>
#include <QSize>
#include <QString>
#include <future>
#include <vector>

#include "runtime/image.h"

namespace corvanda {

class Estampas {
  public:
    /// A picture in one size, in device pixels.
    struct Pedido {
        Picture estampa;
        QSize tamano;
    };

    /// `carpeta` is the folder of the SVG files.
    explicit Estampas(QString carpeta) : carpeta(std::move(carpeta)) {}
    ~Estampas();
    Estampas(const Estampas&) = delete;
    Estampas& operator=(const Estampas&) = delete;

    /// Begins to render pictures in the background; asking for one waits for it alone.
    void Preparar(const std::vector<Pedido>& pedidos);

    /// The picture in device pixels, to be drawn at that size divided by the ratio.
    QPixmap De(Picture estampa, QSize tamano, qreal ratio);
    /// Keeps none of the sizes of a picture that is not needed for a while.
    void Olvidar(Picture estampa);

    /// A picture by the name of its file ("corvanda", "mano"), square.
    QPixmap Suelta(const QString& nombre, int lado, qreal ratio);

  private:
    QString carpeta;
    QHash<quint64, QPixmap> hechas;
    QHash<quint64, std::shared_future<QImage>> en_camino;
};

}  // namespace corvanda
