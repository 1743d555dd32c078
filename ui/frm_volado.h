// The start-player dialog: each side throws one die, the higher throw begins, equal throws are
// thrown again. The caption of its one button is all the progress there is.
#pragma once

#include <QDialog>
#include <QPushButton>
#include <functional>

#include "core/partida.h"
#include "runtime/ports.h"
#include "ui/cuadro.h"
#include "ui/escala.h"
#include "ui/estampas.h"
#include "ui/letrero.h"
#include "ui/voz.h"

namespace corvanda {

class FrmVolado final : public QDialog {
    Q_OBJECT

  public:
    /// `ayuda` opens the help as F1 does in the main window.
    FrmVolado(QWidget* ventana, Modulo1& modulo, RandomNumbers& azar, EventLoop& eventos,
              Escala escala, Estampas& estampas, std::function<void()> ayuda);

    /// One step: a throw, or the end.
    void Btn_Click();

  protected:
    void keyPressEvent(QKeyEvent* evento) override;

  private:
    void Form_Load();
    void Mostrar(Cuadro* imagen, const QString& dibujo);
    Byte Tirar(Cuadro* imagen, const char* bando, const QString& material);
    void Tirar_Cafe();
    void Decidir();

    Modulo1& modulo;
    RandomNumbers& azar;
    EventLoop& eventos;
    const Escala escala;
    Estampas& estampas;
    std::function<void()> ayuda;

    Cuadro* Image1 = nullptr;
    Cuadro* Image2 = nullptr;
    Letrero* Label1 = nullptr;
    QPushButton* Btn = nullptr;
    Voz* voz = nullptr;
    Byte Tiro_Blanca = 0;  // 0..5, the face less one
    Byte Tiro_Cafe = 0;
};

}  // namespace corvanda
