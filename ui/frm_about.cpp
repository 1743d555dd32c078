#include "ui/frm_about.h"

#include <QFutureWatcher>
#include <QImage>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPromise>
#include <QScreen>
#include <QThreadPool>
#include <cctype>
#include <cstdint>
#include <memory>

#include "runtime/hourglass.h"
#include "ui/dialogos.h"
#include "ui/estampas.h"

namespace corvanda {

namespace {

constexpr int LATIDO = 100;  // milliseconds
constexpr Integer ULTIMA_VEZ = 30;
constexpr double ANCHO = 10215;  // twips that have to be seen: as wide as the main window's design,
constexpr double ALTO = 9240;    // down to the lowest text
constexpr double LETRA = 12;     // points
constexpr double CORRIMIENTO = 30;  // twips between the two copies of a text

constexpr const char* AVISO =
    "Corvanda " CORVANDA_VERSION " © 2026 The Corvanda authors\nauthors@corvanda.example";
constexpr const char* DIRECCION = "https://corvanda.example";

const QColor BLANCO(Qt::white);
const QColor GRIS(0x60, 0x60, 0x60);
constexpr double ALTO_DE_TEXTO = 600;  // twips
constexpr int RENGLONES = 2;

// A picture from a file that fills its place, crisp on whatever screen it is shown. It is drawn in
// the background, because on a large screen that takes longer than the film may wait for.
class Lamina final : public QWidget {
  public:
    Lamina(QWidget* padre, QString archivo) : QWidget(padre), archivo(std::move(archivo)) {
        connect(&espera, &QFutureWatcher<QImage>::finished, this, qOverload<>(&QWidget::update));
    }
    // The worker has copies of all it needs, but the library under it must not be gone first.
    ~Lamina() override { espera.waitForFinished(); }
    Lamina(const Lamina&) = delete;
    Lamina& operator=(const Lamina&) = delete;

  protected:
    void resizeEvent(QResizeEvent* /*evento*/) override { Pedir(); }

    void paintEvent(QPaintEvent* /*evento*/) override {
        Pedir();
        if (espera.future().resultCount() > 0) QPainter(this).drawImage(rect(), espera.result());
    }

  private:
    void Pedir() {
        const QSize tamano = (QSizeF(size()) * devicePixelRatioF()).toSize();
        if (tamano == pedida || tamano.isEmpty()) return;
        pedida = tamano;
        const auto promesa = std::make_shared<QPromise<QImage>>();
        espera.setFuture(promesa->future());
        promesa->start();
        QThreadPool::globalInstance()->start([promesa, tamano, de = archivo] {
            promesa->addResult(Estampas::Dibujar(de, tamano));
            promesa->finish();
        });
    }

    QString archivo;
    QSize pedida;
    QFutureWatcher<QImage> espera;
};

void Ennegrecer(QWidget& control) {
    control.setPalette(QPalette(Qt::black, Qt::black));
    control.setAutoFillBackground(true);
}

}  // namespace

Escala FrmAbout::Escala_Para(QSizeF usable) {
    return Escala::Que_Quepan({ANCHO, ALTO}, usable);
}

FrmAbout::FrmAbout(QWidget* ventana, Integer& Veces, const Servicios_De_Acerca& servicios,
                   Escala escala, const QString& imagenes, std::function<void()> principal)
    : QDialog(ventana),
      Veces(Veces),
      servicios(servicios),
      escala(escala),
      principal(std::move(principal)) {
    setObjectName("FrmAbout");
    setWindowTitle("Acerca de...");
    // A window of its own kind: some desktops do not let a dialog fill the screen.
    setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    Ennegrecer(*this);
    Poner_Imagenes(imagenes);
    Poner_Textos();
    Timer1.setObjectName("Timer1");
    connect(&Timer1, &QTimer::timeout, this, &FrmAbout::Timer1_Timer);
    Form_Load();
}

FrmAbout::~FrmAbout() {
    if (!descargada) Form_Unload();
}

void FrmAbout::Poner_Imagenes(const QString& imagenes) {
    Image1 = new Lamina(this, imagenes + "/acerca_ficha.svg");
    Picture1 = new QWidget(this);
    Image2 = new Lamina(this, imagenes + "/acerca_cuadro.svg");
    Ennegrecer(*Picture1);
    Image1->setObjectName("Image1");
    Picture1->setObjectName("Picture1");
    Image2->setObjectName("Image2");
    Image1->setAccessibleName("Corvanda");
    Picture1->setAccessibleName("Film");
    Image2->setAccessibleName("Picture of a board");
}

// Of each pair the grey copy, which is made last, lies over the white one and is its shadow.
void FrmAbout::Poner_Textos() {
    Label5 = Poner_Texto("Label5", AVISO, BLANCO);
    Label1 = Poner_Texto("Label1", AVISO, GRIS);
    lblDisp1 = Poner_Texto("lblDisp1", DIRECCION, BLANCO);
    lblDisp2 = Poner_Texto("lblDisp2", DIRECCION, GRIS);
    Label1->Sombrear(Label5);
    lblDisp2->Sombrear(lblDisp1);
    for (QLabel* etiqueta : {lblDisp1, lblDisp2}) etiqueta->hide();
}

Letrero* FrmAbout::Poner_Texto(const char* nombre, const char* texto, const QColor& color) {
    QFont letra = escala.Letra(LETRA, true);
    letra.setFamilies({"Times New Roman", "Liberation Serif", "DejaVu Serif"});
    letra.setStyleHint(QFont::Serif);
    // A font with lines further apart than the first of these would have its second one cut.
    while (letra.pixelSize() > 1 &&
           RENGLONES * QFontMetricsF(letra).lineSpacing() > escala.Pixeles(ALTO_DE_TEXTO))
        letra.setPixelSize(letra.pixelSize() - 1);
    Letrero* etiqueta = dialogos::Texto(*this, nombre, QString::fromUtf8(texto), {}, escala, letra);
    etiqueta->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    dialogos::Colorear(*etiqueta, color);
    return etiqueta;
}

void FrmAbout::Centrar(int ancho) {
    const double medio = escala.Twips(ancho) / 2;
    const auto poner = [&](QWidget* control, double top, double width, double height,
                           double corrimiento = 0) {
        control->setGeometry(escala.Lugar(medio - width / 2 - corrimiento, top, width, height));
    };
    poner(Image1, -120, 2685, 2385);
    poner(Picture1, 2400, 3000, 2250);
    poner(Image2, 4710, 6555, 2700);
    poner(Label1, 7690, 7335, ALTO_DE_TEXTO);
    poner(Label5, 7740, 7335, ALTO_DE_TEXTO, CORRIMIENTO);
    poner(lblDisp1, 8640, 7335, ALTO_DE_TEXTO);
    poner(lblDisp2, 8610, 7335, ALTO_DE_TEXTO, CORRIMIENTO);
}

void FrmAbout::Form_Load() {
    const Hourglass reloj(servicios.Puntero);
    const QRect pantalla = screen()->geometry();
    setGeometry(pantalla);
    setWindowState(Qt::WindowFullScreen);
    Centrar(pantalla.width());
    Archivo = '"' + servicios.Programa.Path() + "\\Corvanda.avi\"";
    Open_Avi(Archivo, *Picture1);
    Timer1.start(LATIDO);
}

void FrmAbout::Form_Unload() {
    descargada = true;
    Timer1.stop();
    Close_Avi(Archivo);
}

void FrmAbout::Mostrar_Direccion() {
    for (QLabel* etiqueta : {lblDisp1, lblDisp2}) etiqueta->show();
}

// The desktop may give the window another size than the screen has.
void FrmAbout::resizeEvent(QResizeEvent* /*evento*/) {
    Centrar(width());
}

void FrmAbout::Timer1_Timer() {
    Veces = static_cast<Integer>(Veces + 1);
    Replay(Archivo);
    if (Veces == ULTIMA_VEZ) Close_About();
}

// Showing the main window for the first time lets events run, and any of them may come back here.
void FrmAbout::Close_About() {
    if (descargada) return;
    const Hourglass reloj(servicios.Puntero);
    Form_Unload();
    done(QDialog::Accepted);
    principal();
}

// The film

void FrmAbout::Mandar(const std::string& orden) {
    // A film that cannot be shown leaves the box black; nobody needs to be told why.
    servicios.Medios.mciSendString(orden, respuesta);
}

void FrmAbout::Open_Avi(const std::string& nombre, const QWidget& Ventana) {
    const auto manija = reinterpret_cast<std::uintptr_t>(&Ventana);
    Mandar("Open " + nombre + " Wait");
    Mandar("Window " + nombre + " handle " + ' ' + std::to_string(manija));
    Mandar("Put " + nombre + " destination at 0 0 200 150");
}

void FrmAbout::Replay(const std::string& nombre) {
    Mandar("Status " + nombre + " Mode");
    if (respuesta.empty() || std::toupper(static_cast<unsigned char>(respuesta[0])) != 'S') return;
    Mandar("Seek " + nombre + " to 0");
    Mandar("Play " + nombre);
}

void FrmAbout::Close_Avi(const std::string& nombre) {
    Mandar("Close " + nombre);
}

// What closes it

void FrmAbout::keyPressEvent(QKeyEvent* evento) {
    // The key that chose the menu entry may still be down.
    if (evento->isAutoRepeat()) return;
    const bool es_orden = evento->modifiers() & (Qt::AltModifier | Qt::MetaModifier);
    if (!es_orden && evento->key() != Qt::Key_Delete) Form_KeyPress(evento->text());
}

void FrmAbout::Form_KeyPress(const QString& caracter) {
    if (!caracter.isEmpty()) Close_About();
}

// Everything but the texts: those have no answer to a click.
bool FrmAbout::Recibe_Clics(QPoint punto) const {
    return rect().contains(punto) && qobject_cast<QLabel*>(childAt(punto)) == nullptr;
}

void FrmAbout::mousePressEvent(QMouseEvent* evento) {
    pulsada = evento->button() == Qt::LeftButton && Recibe_Clics(evento->position().toPoint());
}

void FrmAbout::mouseReleaseEvent(QMouseEvent* evento) {
    if (evento->button() != Qt::LeftButton || !pulsada) return;
    pulsada = false;
    if (Recibe_Clics(evento->position().toPoint())) Close_About();
}

void FrmAbout::closeEvent(QCloseEvent* evento) {
    evento->ignore();
    Close_About();
}

}  // namespace corvanda
