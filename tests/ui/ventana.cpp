#include "tests/ui/ventana.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QMenu>
#include <QMenuBar>
#include <QWindow>

namespace corvanda::pruebas {

QString Carpeta_De_Imagenes() {
    return QCoreApplication::applicationDirPath() + "/imagenes";
}

QPoint Raton_De_Pruebas::En_Ventana(Lugar lugar) const {
    Estuche& estuche = ventana.Tablero();
    const QPointF punto(lugar.x * estuche.width() / Estuche::ANCHO,
                        lugar.y * estuche.height() / Estuche::ALTO);
    return estuche.mapTo(&ventana, punto.toPoint());
}

void Raton_De_Pruebas::Ir(Lugar lugar) {
    QTest::mouseMove(ventana.windowHandle(), En_Ventana(lugar));
}

void Raton_De_Pruebas::Pulsar(Lugar lugar, Qt::MouseButton boton) {
    QTest::mousePress(ventana.windowHandle(), boton, {}, En_Ventana(lugar));
}

void Raton_De_Pruebas::Soltar(Lugar lugar, Qt::MouseButton boton) {
    QTest::mouseRelease(ventana.windowHandle(), boton, {}, En_Ventana(lugar));
}

void Raton_De_Pruebas::Arrastrar(Lugar desde, Lugar hasta) {
    constexpr int PASOS = 3;
    Pulsar(desde);
    for (int i = 1; i <= PASOS; ++i) {
        Ir({desde.x + (hasta.x - desde.x) * i / PASOS, desde.y + (hasta.y - desde.y) * i / PASOS});
    }
    Soltar(hasta);
}

void Raton_De_Pruebas::Elegir(const QString& menu, const QString& entrada) {
    QMenuBar& barra = *ventana.menuBar();
    auto* abierto = barra.findChild<QMenu*>(menu);
    ASSERT_NE(abierto, nullptr) << menu.toStdString();
    const QPoint en_barra = barra.actionGeometry(abierto->menuAction()).center();
    QTest::mouseClick(ventana.windowHandle(), Qt::LeftButton, {}, barra.mapTo(&ventana, en_barra));
    auto* accion = abierto->findChild<QAction*>(entrada);
    ASSERT_NE(accion, nullptr) << entrada.toStdString();
    ASSERT_TRUE(QTest::qWaitFor([&] { return abierto->isVisible(); }));
    QTest::mouseClick(abierto, Qt::LeftButton, {}, abierto->actionGeometry(accion).center());
}

void Ventana::Pases::DoEvents() {
    QCoreApplication::processEvents();
    escritorio.DoEvents();
}

void Ventana::Pases::DoEventsPaced() {
    QCoreApplication::processEvents();
    escritorio.DoEventsPaced();
}

Ventana::Ventana(Cajas cajas, Oponente* computadora, const Escala& escala)
    : frm(partida,
          {cajas == Cajas::Reales ? static_cast<MessageBoxes&>(boxes) : escritorio, pases,
           escritorio, escritorio, escritorio, escritorio, escritorio, escritorio},
          escala, estampas, computadora) {
    boxes.SetMainWindow(&frm);
}

void Ventana::Abrir() {
    abierta = true;
    frm.Form_Load();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&frm));
    // At large device pixel ratios the test's screen is smaller than the case.
    if (frm.width() < frm.Tablero().width()) frm.showNormal();
    QCoreApplication::processEvents();
    escritorio.Leer();
}

void Ventana::Poner(const std::string& posicion) {
    if (!abierta) Abrir();
    partida.Sonido = False;
    pruebas::Poner(frm.Mesa(), partida, posicion);
    frm.Tablero().update();
    QCoreApplication::processEvents();
    escritorio.Leer();
}

Diario Ventana::Leer() {
    Diario diario = escritorio.Leer();
    std::erase_if(diario, [](const std::string& linea) {
        return linea.starts_with("puntero") || linea == "siembra";
    });
    return diario;
}

Lugar Ventana::Centro(Control control) const {
    const Image& imagen = *Imagen_De(partida, control);
    return {static_cast<double>(imagen.Left + imagen.Width / 2),
            static_cast<double>(imagen.Top + imagen.Height / 2)};
}

Lugar Ventana::Base(Integer punto) const {
    return Meta(partida, {Jugada::Clase::Mover, 0, punto});
}

QAction* Ventana::Entrada(const char* nombre) {
    auto* entrada = frm.menuBar()->findChild<QAction*>(nombre);
    if (entrada == nullptr) ADD_FAILURE() << "no entry " << nombre;
    return entrada;
}

FichaFlotante& Ventana::Flotante() {
    return *frm.findChild<FichaFlotante*>("FichaFlotante");
}

}  // namespace corvanda::pruebas
