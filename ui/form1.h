// The speed dialog: how many cycles the computer waits before each of its moves. A chip slides
// across its top edge when it opens; its buttons can be used once that has ended.
#pragma once

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTimer>

#include "core/partida.h"
#include "runtime/ports.h"
#include "ui/cuadro.h"
#include "ui/escala.h"
#include "ui/estampas.h"

namespace corvanda {

class Form1 final : public QDialog {
    Q_OBJECT

  public:
    /// Shows Velocidad, or the nearest end of the bar when it lies outside 1 to 200; only "&Ok"
    /// changes it.
    Form1(QWidget* ventana, Modulo1& modulo, EventLoop& eventos, Escala escala, Estampas& estampas);

  protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;

  private:
    Cuadro::Dibujo Ficha(const char* nombre) const;
    QFont Letra_Hasta(const QString& texto, double ancho) const;
    void Poner_Textos();
    void Poner_Controles();
    void Scroll_Change();
    void Timer1_Timer();
    void BtnAceptar_Click();

    Modulo1& modulo;
    EventLoop& eventos;
    const Escala escala;
    Estampas& estampas;
    QLineEdit* TxtVel = nullptr;
    QScrollBar* Scroll = nullptr;
    QPushButton* BtnAceptar = nullptr;
    QPushButton* BtnCancelar = nullptr;
    Cuadro* Image3 = nullptr;
    QTimer Timer1;
};

}  // namespace corvanda
