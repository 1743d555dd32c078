// Renders one SVG file as the PNG files of an icon theme:
//
//     iconos PICTURE.svg FOLDER SIZE...
//
// writes FOLDER/SIZExSIZE/apps/PICTURE.png for each size in pixels.
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdlib>
#include <iostream>

namespace {

bool Rendir(QSvgRenderer& dibujo, int lado, const QString& archivo) {
    QImage imagen(lado, lado, QImage::Format_ARGB32_Premultiplied);
    imagen.fill(Qt::transparent);
    QPainter pintor(&imagen);
    dibujo.render(&pintor);
    pintor.end();
    return QDir().mkpath(QFileInfo(archivo).path()) && imagen.save(archivo);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 4) {
        std::cerr << "usage: iconos PICTURE.svg FOLDER SIZE...\n";
        return 2;
    }
    const QString fuente = QString::fromLocal8Bit(argv[1]);
    QSvgRenderer dibujo(fuente);
    if (!dibujo.isValid()) {
        std::cerr << argv[1] << ": not a picture\n";
        return 1;
    }
    for (int i = 3; i < argc; ++i) {
        const int lado = std::atoi(argv[i]);
        const QString archivo = QString("%1/%2x%2/apps/%3.png")
                                    .arg(QString::fromLocal8Bit(argv[2]))
                                    .arg(lado)
                                    .arg(QFileInfo(fuente).completeBaseName());
        if (lado > 0 && Rendir(dibujo, lado, archivo)) continue;
        std::cerr << archivo.toStdString() << ": could not be written\n";
        return 1;
    }
    return 0;
}
