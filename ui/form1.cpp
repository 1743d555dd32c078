#include "ui/form1.h"

#include <QKeyEvent>
#include <algorithm>

#include "runtime/conversion.h"
#include "ui/dialogos.h"
#include "ui/estilo.h"

namespace corvanda {

namespace {

constexpr int MAS_RAPIDA = 1;
constexpr int MAS_LENTA = 200;
constexpr int PASO_CHICO = 1;
constexpr int PASO_GRANDE = 20;
constexpr int ESPERA = 500;         // milliseconds before the chip slides
constexpr double LADO = 480;        // twips of the chip's picture
constexpr double LETRA = 8.25;      // points
constexpr double NUMERO = 12;       // points of the value
constexpr double SEPARACION = 105;  // twips between a caption and what stands beside it

const QColor AZUL_OSCURO(0, 0, 0x80);

}  // namespace

Form1::Form1(QWidget* ventana, Modulo1& modulo, EventLoop& eventos, Escala escala,
             Estampas& estampas)
    : QDialog(ventana), modulo(modulo), eventos(eventos), escala(escala), estampas(estampas) {
    setObjectName("Form1");
    setWindowTitle("Game Speed...");
    dialogos::Preparar(*this, escala, 4770, 1815);
    Poner_Textos();
    Poner_Controles();

    Scroll->setValue(std::clamp<int>(modulo.Velocidad, MAS_RAPIDA, MAS_LENTA));
    Scroll_Change();
    connect(Scroll, &QScrollBar::valueChanged, this, &Form1::Scroll_Change);
    connect(BtnAceptar, &QPushButton::clicked, this, &Form1::BtnAceptar_Click);
    connect(BtnCancelar, &QPushButton::clicked, this, &QDialog::reject);
    connect(&Timer1, &QTimer::timeout, this, &Form1::Timer1_Timer);
    Timer1.start(ESPERA);
}

Cuadro::Dibujo Form1::Ficha(const char* nombre) const {
    return [this, nombre](qreal ratio) {
        const int lado = qRound(escala.Pixeles(LADO));
        const QPixmap suelta = estampas.Suelta(nombre, lado, ratio);
        return suelta.isNull() ? estampas.De(Picture::Cafe, QSize(lado, lado) * ratio, ratio)
                               : suelta;
    };
}

// The bold font of the layout, or a smaller one at which a text is no wider than this.
QFont Form1::Letra_Hasta(const QString& texto, double ancho) const {
    QFont letra = escala.Letra(LETRA, true);
    while (letra.pixelSize() > 1 &&
           QFontMetricsF(letra).horizontalAdvance(texto) > escala.Pixeles(ancho))
        letra.setPixelSize(letra.pixelSize() - 1);
    return letra;
}

void Form1::Poner_Textos() {
    const auto poner = [&](const char* nombre, const char* texto, dialogos::Sitio sitio,
                           Qt::Alignment lado, const QFont& letra) {
        QLabel* etiqueta = dialogos::Texto(*this, nombre, texto, sitio, escala, letra);
        etiqueta->setAlignment(lado | Qt::AlignVCenter);
        dialogos::Colorear(*etiqueta, AZUL_OSCURO);
        return etiqueta;
    };
    const QFont chica = Letra_Hasta("200=Slow", 3480 - 2520 - SEPARACION);
    poner("Label1", "Machine speed :", {840, 480, 1935, 495}, Qt::AlignHCenter,
          Letra_Hasta("Machine speed :", 1935));
    QLabel* rapida = poner("Label2", "1=Fast", {120, 1440, 1095, 255}, Qt::AlignRight, chica);
    // The bar begins a little before the caption's place ends.
    rapida->setContentsMargins(0, 0, qRound(escala.Pixeles(15 + SEPARACION)), 0);
    poner("Label3", "200=Slow", {2520, 1440, 1095, 255}, Qt::AlignLeft, chica);
    Image3 = new Cuadro(this, "Image3", escala.Lugar(3840, 0, LADO, LADO));
    Image3->Mostrar(Ficha("cafe_dialogo"));
    Image3->setAccessibleName("Picture of a brown chip");
}

void Form1::Poner_Controles() {
    TxtVel = new QLineEdit(this);
    TxtVel->setObjectName("TxtVel");
    TxtVel->setEnabled(false);
    TxtVel->setFont(escala.Letra(NUMERO, true));
    TxtVel->setAlignment(Qt::AlignCenter);
    // The blank that the value begins with is not seen.
    TxtVel->setTextMargins(0, 0, TxtVel->fontMetrics().horizontalAdvance(' '), 0);
    Estilo::Vestir(*TxtVel);
    TxtVel->setGeometry(escala.Lugar(1200, 960, 1215, 495));
    TxtVel->setAccessibleName("Machine speed");

    Scroll = new QScrollBar(Qt::Horizontal, this);
    Scroll->setObjectName("Scroll");
    Scroll->setRange(MAS_RAPIDA, MAS_LENTA);
    Scroll->setSingleStep(PASO_CHICO);
    Scroll->setPageStep(PASO_GRANDE);
    Scroll->setFocusPolicy(Qt::StrongFocus);
    Scroll->setGeometry(escala.Lugar(1200, 1440, 1215, 255));
    Scroll->setAccessibleName("Machine speed, 1 fast to 200 slow");
    Scroll->installEventFilter(this);
    Estilo::Vestir(*Scroll);
    Scroll->setFocus();

    BtnAceptar = dialogos::Boton(*this, "BtnAceptar", "&Ok", {3480, 840, 1215, 395}, escala);
    BtnCancelar = dialogos::Boton(*this, "BtnCancelar", "&Cancel", {3480, 1320, 1215, 395}, escala);
    BtnAceptar->setDefault(true);
    for (QPushButton* boton : {BtnAceptar, BtnCancelar}) boton->setEnabled(false);
}

void Form1::Scroll_Change() {
    TxtVel->setText(QString::fromStdString(Str(static_cast<Integer>(Scroll->value()))));
}

// The chip slides without anybody's input being handled, so the buttons cannot be pressed
// meanwhile.
void Form1::Timer1_Timer() {
    Timer1.stop();
    Image3->Mostrar(Ficha("cafe_estela"));
    const QSize tamano = Image3->size();
    for (int x = 3840; x >= 100; x -= 50) {
        Image3->setGeometry(QRect(escala.Lugar(x, 0, LADO, LADO).topLeft(), tamano));
        repaint();
        eventos.Sleep(1);
    }
    Image3->Mostrar(Ficha("cafe_dialogo"));
    for (QPushButton* boton : {BtnAceptar, BtnCancelar}) boton->setEnabled(true);
}

void Form1::BtnAceptar_Click() {
    modulo.Velocidad = static_cast<Integer>(Scroll->value());
    accept();
}

// As the toolkit makes them, bars go left at the right arrow key.
bool Form1::eventFilter(QObject* objeto, QEvent* evento) {
    if (evento->type() == QEvent::KeyPress) {
        const int tecla = static_cast<QKeyEvent*>(evento)->key();
        const auto paso = tecla == Qt::Key_Left    ? QScrollBar::SliderSingleStepSub
                          : tecla == Qt::Key_Right ? QScrollBar::SliderSingleStepAdd
                                                   : QScrollBar::SliderNoAction;
        if (paso != QScrollBar::SliderNoAction) {
            Scroll->triggerAction(paso);
            return true;
        }
    }
    return QDialog::eventFilter(objeto, evento);
}

// Esc is the Cancel button, and so does nothing while that cannot be used.
void Form1::keyPressEvent(QKeyEvent* evento) {
    if (evento->key() == Qt::Key_Escape) {
        BtnCancelar->click();
    } else {
        QDialog::keyPressEvent(evento);
    }
}

}  // namespace corvanda
