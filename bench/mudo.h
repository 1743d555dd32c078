// A desktop that says and shows nothing, so that a benchmark measures the game alone, and a hand
// that plays on it.
#pragma once

#include "core/juego.h"
#include "demostracion/jugador.h"
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
    void Sleep(int /*milliseconds*/) override {}
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
    void Rechazar(Control /*ficha*/) override {}
    void Cancelar_Arrastre() override {}

    /// The next move of a game that runs, through the handlers as a hand would: a press and a drop.
    void Jugar_Una(Juego& juego) const {
        const Partida& partida = juego.Estado();
        const Jugada jugada = Elegir(partida);
        if (jugada.clase == Jugada::Clase::Pasar) return juego.mnuPasar_Click();
        const bool blanca = partida.Turno == BLANCA;
        const Integer lugar = jugada.origen == ORIGEN_BARRA_BLANCA ? BARRA_BLANCA : jugada.origen;
        const Integer ficha = Pila_En(partida, lugar).Tope();
        if (blanca) {
            juego.Blanca_MouseDown(ficha, LeftButton);
        } else {
            juego.Cafe_MouseDown(ficha, LeftButton);
        }
        if (jugada.clase == Jugada::Clase::Sacar) {
            juego.Adios_DragDrop(static_cast<Integer>(blanca ? 1 : 0), arrastrada);
        } else {
            juego.Triangle_DragDrop(jugada.destino, arrastrada);
        }
    }

    Puertos Todos() { return {*this, *this, *this, *this, *this, *this, *this}; }

    Control arrastrada;  ///< the chip that the last press took

  private:
    Random suerte;
};

}  // namespace corvanda
