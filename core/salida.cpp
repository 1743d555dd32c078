// Bearing off, and the end of a game.
#include <cstdlib>

#include "core/bandos.h"
#include "core/comprobada.h"
#include "core/juego.h"
#include "runtime/conversion.h"

namespace corvanda {

void Juego::Adios_DragDrop(Integer Index, Control Source) {
    const Comprobada accion(*this);
    const Image* bandeja = Imagen_De(partida, {Arreglo::Adios, Index});
    if (bandeja == nullptr || !bandeja->Visible || !Puede_Soltar(Source)) return;
    const Integer dado = Dado_Que_Saca(Index);
    if (dado == NINGUN_DADO) {
        Beeper();
        return;
    }
    Gastar_Dado(dado);
    Efecto("Pop2.Wav");
    Llevar_A_Bandeja(Source.Index);
    Sacar_De_Origen();
    Pila_En(partida, Bando_De(partida.Turno).bandeja).Poner(Source.Index);

    if (Pila_En(partida, BANDEJA_BLANCA).Cuenta() == FICHAS) {
        Terminar("The player with White Chips Won");
    } else if (Pila_En(partida, BANDEJA_CAFE).Cuenta() == FICHAS) {
        Terminar("The player with Brown Chips won");
    } else if (!partida.Dado[0].Visible && !partida.Dado[1].Visible) {
        Entregar_Turno();
    }
}

// The die that pays a chip's way from Origen into the mover's own tray: an exact one, the first
// before the second; else the larger of those shown, when it is large enough and no chip of either
// side stands farther back in the home board.
Integer Juego::Dado_Que_Saca(Integer bandeja) const {
    const Bando& bando = Bando_De(partida.Turno);
    if (bandeja != bando.adios || !Es_Punto(partida.Origen)) return NINGUN_DADO;
    const auto distancia = static_cast<Integer>(std::abs(partida.Origen - bando.salida));
    const Integer exacto = Dado_Que_Paga(distancia);
    if (exacto != NINGUN_DADO) return exacto;
    const bool primero = partida.Dado[0].Visible;
    const bool segundo = partida.Dado[1].Visible;
    if (primero && partida.Dado1 >= partida.Dado2) {
        return distancia > partida.Dado1 || Hay_Ficha_Atras() ? NINGUN_DADO : 0;
    }
    if (segundo && partida.Dado2 > partida.Dado1) {
        return distancia > partida.Dado2 || Hay_Ficha_Atras() ? NINGUN_DADO : 1;
    }
    return NINGUN_DADO;
}

bool Juego::Hay_Ficha_Atras() const {
    const Bando& bando = Bando_De(partida.Turno);
    for (Integer i = bando.casa; bando.Es_Casa(i); ++i) {
        const bool ocupado =
            Pila_En(partida, i).Cuenta() > 0 && Punto_En(partida, i).Owner != NADIE;
        if (ocupado && bando.Hacia_Atras(partida.Origen, i)) return true;
    }
    return false;
}

void Juego::Llevar_A_Bandeja(Integer ficha) {
    const Bando& bando = Bando_De(partida.Turno);
    const Control control{bando.fichas, ficha};
    const Image& bandeja = Imagen({Arreglo::Adios, bando.adios});
    const Image& imagen = Imagen(control);
    Integer& altura = partida.*bando.altura;

    Punto_En(partida, partida.Origen).Y = imagen.Top;
    Colocar(control, bandeja.Left + (bandeja.Width - imagen.Width) / 2, bandeja.Top + altura);
    altura = CInt(altura + (bandeja.Height - imagen.Height) / 15);
    Habilitar(control, false);
}

// The game is over and still counts as running: the winner is being announced.
bool Juego::Hay_Ganador() const {
    const auto llena = [this](Integer bandeja) {
        return Pila_En(partida, bandeja).Cuenta() == FICHAS;
    };
    return partida.Jugando != False && (llena(BANDEJA_BLANCA) || llena(BANDEJA_CAFE));
}

void Juego::Terminar(const std::string& anuncio) {
    const auto testigo = vigencia.Tomar();
    Sonar("applaus.Wav");
    Avisar(anuncio, style::Exclamation, "¡ You Win !");
    if (!vigencia.Sigue(testigo)) return;
    partida.Jugando = False;
    partida.Turno = BLANCA;
}

}  // namespace corvanda
