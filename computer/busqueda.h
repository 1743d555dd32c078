// The choice of one brown move on the board: an ordinary move, or a bear-off. The driver in
// computadora.h calls one of these for each die; nothing is kept between calls.
//
// What is chosen is played at once, through the same procedures that a person's hands use, so after
// Buscar_Tiro or Sacar the turn, the dice and even the game may be others.
#pragma once

#include <string>

#include "computer/lista.h"
#include "core/juego.h"

namespace corvanda {

class Busqueda {
  public:
    /// What Buscar_Cafes answers when there is no brown chip.
    static constexpr Byte NINGUNO = 30;

    /// The game must outlive the search.
    explicit Busqueda(Juego& juego) : juego(juego) {}

    /// Plays one move from point to point at the level of Nivel, or passes when neither die has
    /// one. LDado1 (1..6) is tried first; Ldado2 is the other die, 0 when there is none. Above the
    /// Beginner level the two are exchanged when only Ldado2 can be played. Other values are dice
    /// that no move fits.
    void Buscar_Tiro(Integer& LDado1, Integer& Ldado2);

    /// Bears one chip off, or calls Buscar_Tiro with the same dice. For a side whose chips have all
    /// been home and are not on the bar.
    void Sacar(Integer& LDado1, Integer& Ldado2);

    /// The first point with brown chips from Ini to Fin, both included, in whichever direction that
    /// is; NINGUNO when there is none. Numbers that are no points are passed over.
    Byte Buscar_Cafes(Integer Ini, Integer Fin) const;

    /// Every move that a die (1..6) allows, as texts: the score, then the source point in two
    /// digits. "2217" is the chip on point 17 with a score of 22. Empty for any other value.
    Lista_Ordenada Candidatos(Integer dado) const;

  private:
    void Tiro_De_Principiante(Integer LDado1, Integer Ldado2);
    void Tiro_Avanzado(Integer& LDado1, Integer& Ldado2);
    void Mover_Desde(Integer origen, Integer dado);
    void Sacar_Desde(Integer origen);

    bool Es_Punto_Cafe(Integer punto) const;
    bool Puede_Mover(Integer origen, Integer dado) const;
    int Valor_De_Origen(Integer origen) const;
    int Premio_Por_Zaguero(Integer origen) const;
    int Premio_Por_Destino(Integer destino) const;
    const Pila& Fichas_En(Integer lugar) const { return Pila_En(juego.Estado(), lugar); }
    Integer Dueno_De(Integer punto) const { return Punto_En(juego.Estado(), punto).Owner; }

    Juego& juego;
};

}  // namespace corvanda
