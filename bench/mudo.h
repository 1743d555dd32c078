// A desktop that says and shows nothing, so that a benchmark measures the game alone.
#pragma once

#include "core/juego.h"
#include "runtime/random.h"

namespace corvanda {

class Mudo : public MessageBoxes,
             public EventLoop,
             public MousePointer,
             public RandomNumbers,
             public WaveOut,
             public App,
             public Pantalla {
  public:
    explicit Mudo(std::uint32_t semilla) : suerte(semilla) {}

    Integer MsgBox(const std::string& /*text*/, Integer /*style*/,
                   const std::string& /*title*/) override {
        return button::Ok;
    }
    void DoEvents() override {}
    void DoEventsPaced() override {}
    void SetShape(PointerShape /*shape*/) override {}
    double Rnd() override { return suerte.Rnd(); }
    void Randomize() override {}
    void sndPlaySound(const std::string& /*path*/) override {}
    unsigned waveOutGetNumDevs() override { return 0; }
    void Beep() override {}
    std::string Path() const override { return {}; }
    std::string EXEName() const override { return {}; }
    void Refrescar(Control /*control*/, const Image& /*antes*/) override {}
    void Iniciar_Arrastre(Control ficha) override { arrastrada = ficha; }
    void Cancelar_Arrastre() override {}

    Puertos Todos() { return {*this, *this, *this, *this, *this, *this, *this}; }

    Control arrastrada;  ///< the chip that the last press took

  private:
    Random suerte;
};

}  // namespace corvanda
