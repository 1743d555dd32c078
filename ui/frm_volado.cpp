#include "ui/frm_volado.h"

#include <QKeyEvent>

#include "runtime/conversion.h"
#include "ui/dialogos.h"
#include "ui/paleta.h"

namespace corvanda {

namespace {

constexpr unsigned long ESPERA = 400;  // milliseconds between White's throw and the computer's

const QColor BLANCO(Qt::white);
const QColor ROJO(0x80, 0, 0);
constexpr double CONTORNO = 25;  // twips on each side of a white letter

}  // namespace

FrmVolado::FrmVolado(QWidget* ventana, Modulo1& modulo, RandomNumbers& azar, EventLoop& eventos,
                     Escala escala, Estampas& estampas, std::function<void()> ayuda)
    : QDialog(ventana),
      modulo(modulo),
      azar(azar),
      eventos(eventos),
      escala(escala),
      estampas(estampas),
      ayuda(std::move(ayuda)) {
    using namespace dialogos;
    setObjectName("FrmVolado");
    setWindowTitle("Player to Start");
    // The frame offers no way around the throws: the dialog ends with its own button.
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
    Preparar(*this, escala, 3135, 2220);
    const QFont fina = escala.Letra(8.25, true);
    Image1 = new Cuadro(this, "Image1", escala.Lugar(540, 120, 480, 480));
    Image2 = new Cuadro(this, "Image2", escala.Lugar(2100, 120, 480, 480));
    Letrero* blanca = Texto(*this, "Label2", "Player 1", {60, 720, 1455, 255}, escala, fina);
    Letrero* cafe = Texto(*this, "Label3", "Player 2", {1740, 720, 1335, 255}, escala, fina);
    Label1 = Texto(*this, "Label1", {}, {360, 1020, 2415, 735}, escala, escala.Letra(9.75, true));
    Btn = Boton(*this, "Btn", "&White Chips", {840, 1800, 1455, 315}, escala);

    voz = new Voz(this);

    for (Cuadro* imagen : {Image1, Image2}) {
        Mostrar(imagen, "dado_vacio");
        imagen->setAccessibleName("Die: not thrown");
    }
    Image1->setAccessibleDescription("White's die");
    Image2->setAccessibleDescription("Brown's die");
    Label1->setAccessibleDescription("Who starts");
    for (Letrero* nombre : {blanca, cafe}) nombre->setAlignment(Qt::AlignCenter);
    Colorear(*blanca, BLANCO);
    blanca->Contornear(paleta::NOGAL, escala.Pixeles(CONTORNO));
    Colorear(*cafe, ROJO);
    Label1->setAlignment(Qt::AlignCenter);
    Label1->No_Partir({"White Chips", "Brown Chips"});
    Btn->setDefault(true);
    connect(Btn, &QPushButton::clicked, this, &FrmVolado::Btn_Click);
    Form_Load();
}

void FrmVolado::Form_Load() {
    azar.Randomize();
}

void FrmVolado::Btn_Click() {
    if (Btn->text() == "&White Chips") {
        Tiro_Blanca = Tirar(Image1, "White", {});
        Btn->setText("&Brown Chips");
        if (modulo.Nivel == DOS_PERSONAS) return;
        // The computer throws by itself. Nobody's input is handled while its die is waited for.
        repaint();
        eventos.Sleep(ESPERA);
        Tirar_Cafe();
    } else if (Btn->text() == "&Brown Chips") {
        Tirar_Cafe();
    } else {
        accept();
    }
}

void FrmVolado::Mostrar(Cuadro* imagen, const QString& dibujo) {
    imagen->Mostrar([this, dibujo, tamano = imagen->size()](qreal ratio) {
        return estampas.De(dibujo, tamano * ratio, ratio);
    });
}

// Each side's die is of the material of its chips.
Byte FrmVolado::Tirar(Cuadro* imagen, const char* bando, const QString& material) {
    const Byte tiro = CByte(azar.Rnd() * 5);
    const auto cara = static_cast<Picture>(static_cast<int>(Picture::Dado1) + tiro);
    Mostrar(imagen, Estampas::Nombre_De(cara) + material);
    imagen->setAccessibleName(QString("Die: %1").arg(tiro + 1));
    voz->Decir(QString("%1 throws %2.").arg(bando).arg(tiro + 1));
    return tiro;
}

void FrmVolado::Tirar_Cafe() {
    Tiro_Cafe = Tirar(Image2, "Brown", "_cafe");
    Btn->setText("&Close");
    Decidir();
}

// Turno gets the side that does not start, because the first roll gives the turn to the other.
void FrmVolado::Decidir() {
    if (Tiro_Cafe == Tiro_Blanca) {
        Btn->setText("&White Chips");
        voz->Decir("Equal dice. Throw again.");
        return;
    }
    const bool empieza_cafe = Tiro_Cafe > Tiro_Blanca;
    modulo.Turno = empieza_cafe ? BLANCA : CAFE;
    Label1->setText(QString("The player with ") + (empieza_cafe ? "Brown Chips" : "White Chips") +
                    " starts");
    voz->Decir(Label1->text());
}

void FrmVolado::keyPressEvent(QKeyEvent* evento) {
    if (evento->key() == Qt::Key_F1) {
        ayuda();
    } else if (evento->key() == Qt::Key_Escape) {
        Btn->click();
    } else {
        QDialog::keyPressEvent(evento);
    }
}

}  // namespace corvanda
