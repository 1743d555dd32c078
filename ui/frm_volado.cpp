#include "ui/frm_volado.h"

#include <QKeyEvent>
#include <QThread>

#include "runtime/conversion.h"
#include "ui/dialogos.h"

namespace corvanda {

namespace {

constexpr unsigned long ESPERA = 400;  // milliseconds between White's throw and the computer's

const QColor BLANCO(Qt::white);
const QColor ROJO(0x80, 0, 0);
const QColor PLACA_OSCURA(0x3a, 0x20, 0x14);
const QColor PLACA_CLARA(0xf3, 0xea, 0xd0);

}  // namespace

FrmVolado::FrmVolado(QWidget* ventana, Modulo1& modulo, RandomNumbers& azar, Escala escala,
                     Estampas& estampas, std::function<void()> ayuda)
    : QDialog(ventana),
      modulo(modulo),
      azar(azar),
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
    QLabel* blanca = Texto(*this, "Label2", "Player 1", {60, 720, 1455, 255}, escala, fina);
    QLabel* cafe = Texto(*this, "Label3", "Player 2", {1740, 720, 1335, 255}, escala, fina);
    Label1 = Texto(*this, "Label1", {}, {360, 1020, 2415, 735}, escala, escala.Letra(9.75, true));
    Btn = Boton(*this, "Btn", "&White Chips", {840, 1800, 1455, 315}, escala);

    voz = new Voz(this);

    for (Cuadro* imagen : {Image1, Image2}) imagen->setAccessibleName("Die: not thrown");
    Image1->setAccessibleDescription("White's die");
    Image2->setAccessibleDescription("Brown's die");
    Label1->setAccessibleDescription("Who starts");
    for (QLabel* nombre : {blanca, cafe}) nombre->setAlignment(Qt::AlignCenter);
    Colorear(*blanca, BLANCO, PLACA_OSCURA);
    Colorear(*cafe, ROJO, PLACA_CLARA);
    Label1->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    Label1->setWordWrap(true);
    Btn->setDefault(true);
    connect(Btn, &QPushButton::clicked, this, &FrmVolado::Btn_Click);
    Form_Load();
}

void FrmVolado::Form_Load() {
    azar.Randomize();
}

void FrmVolado::Btn_Click() {
    if (Btn->text() == "&White Chips") {
        Tiro_Blanca = Tirar(Image1, "White");
        Btn->setText("&Brown Chips");
        if (modulo.Nivel == DOS_PERSONAS) return;
        // The computer throws by itself. No event is handled while its die is waited for.
        repaint();
        QThread::msleep(ESPERA);
        Tirar_Cafe();
    } else if (Btn->text() == "&Brown Chips") {
        Tirar_Cafe();
    } else {
        accept();
    }
}

Byte FrmVolado::Tirar(Cuadro* imagen, const char* bando) {
    const Byte tiro = CByte(azar.Rnd() * 5);
    const auto cara = static_cast<Picture>(static_cast<int>(Picture::Dado1) + tiro);
    imagen->Mostrar([this, cara, tamano = imagen->size()](qreal ratio) {
        return estampas.De(cara, tamano * ratio, ratio);
    });
    imagen->setAccessibleName(QString("Die: %1").arg(tiro + 1));
    voz->Decir(QString("%1 throws %2.").arg(bando).arg(tiro + 1));
    return tiro;
}

void FrmVolado::Tirar_Cafe() {
    Tiro_Cafe = Tirar(Image2, "Brown");
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
