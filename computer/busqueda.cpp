#include "computer/busqueda.h"

#include <utility>

namespace corvanda {

namespace {

constexpr Integer FONDO = PUNTOS - 1;     // where the search begins: the point farthest from home
constexpr Integer ULTIMO_DE_CASA = 5;     // the home point farthest from the tray
constexpr Integer FIN_DE_MI_MITAD = 11;   // last point of the half that holds Brown's home
constexpr Integer BANDEJA_DE_CAFE = 0;    // Index of Brown's tray
constexpr int DISTANCIA_DE_REZAGADO = 7;  // from here on the last chip is out of touch
constexpr std::size_t CIFRAS_DE_PUNTO = 2;

std::string Dos_Cifras(Integer punto) {
    return (punto < 10 ? "0" : "") + std::to_string(punto);
}

}  // namespace

bool Busqueda::Es_Punto_Cafe(Integer punto) const {
    return Es_Punto(punto) && Dueno_De(punto) == CAFE && Fichas_En(punto).Cuenta() > 0;
}

// A target below point 0 would be a bear-off, which an ordinary move never is.
bool Busqueda::Puede_Mover(Integer origen, Integer dado) const {
    const auto destino = static_cast<Integer>(origen - dado);
    return dado > 0 && destino >= 0 && !Cerrado(juego.Estado(), destino, CAFE);
}

Byte Busqueda::Buscar_Cafes(Integer Ini, Integer Fin) const {
    const int paso = Ini < Fin ? 1 : -1;
    for (int i = Ini; i != Fin + paso; i += paso) {
        if (Es_Punto_Cafe(static_cast<Integer>(i))) return static_cast<Byte>(i);
    }
    return NINGUNO;
}

void Busqueda::Mover_Desde(Integer origen, Integer dado) {
    juego.Poner_Origen(origen);
    juego.Mover(CAFE, Fichas_En(origen).Tope(), static_cast<Integer>(origen - dado));
}

void Busqueda::Sacar_Desde(Integer origen) {
    juego.Poner_Origen(origen);
    juego.Adios_DragDrop(BANDEJA_DE_CAFE, {Arreglo::Cafe, Fichas_En(origen).Tope()});
}

void Busqueda::Buscar_Tiro(Integer& LDado1, Integer& Ldado2) {
    if (juego.Estado().Nivel == PRINCIPIANTE) {
        Tiro_De_Principiante(LDado1, Ldado2);
    } else {
        Tiro_Avanzado(LDado1, Ldado2);
    }
}

// The first move that fits, from the back. Origen follows the scan, so that after a pass it names
// the last brown point looked at.
void Busqueda::Tiro_De_Principiante(Integer LDado1, Integer Ldado2) {
    for (Integer i = FONDO; i >= 0; --i) {
        if (!Es_Punto_Cafe(i)) continue;
        juego.Poner_Origen(i);
        for (const Integer dado : {LDado1, Ldado2}) {
            if (!Puede_Mover(i, dado)) continue;
            Mover_Desde(i, dado);
            return;
        }
    }
    juego.mnuPasar_Click();
}

// The best move of the first die; the second die has its turn only when the first has no move.
void Busqueda::Tiro_Avanzado(Integer& LDado1, Integer& Ldado2) {
    Lista_Ordenada Lista = Candidatos(LDado1);
    if (Lista.Vacia() && Ldado2 != 0) {
        std::swap(LDado1, Ldado2);
        Lista = Candidatos(LDado1);
        if (Lista.Vacia()) std::swap(LDado1, Ldado2);
    }
    if (Lista.Vacia()) {
        juego.mnuPasar_Click();
        return;
    }
    const std::string mejor = Lista.Ultimo();
    const double origen = Val(mejor.substr(mejor.size() - CIFRAS_DE_PUNTO));
    Mover_Desde(CInt(origen), LDado1);
}

Lista_Ordenada Busqueda::Candidatos(Integer dado) const {
    Lista_Ordenada Lista;
    for (Integer i = FONDO; i >= dado; --i) {
        if (!Es_Punto_Cafe(i) || !Puede_Mover(i, dado)) continue;
        int valor = Valor_De_Origen(i);
        if (Lista.Vacia()) valor += Premio_Por_Zaguero(i);
        valor += Premio_Por_Destino(static_cast<Integer>(i - dado));
        Lista.Agregar(std::to_string(valor) + Dos_Cifras(i));
    }
    return Lista;
}

// Two chips that part leave a lone one behind; a lone chip that moves leaves none.
int Busqueda::Valor_De_Origen(Integer origen) const {
    switch (Fichas_En(origen).Cuenta()) {
        case 1:
            return 21;
        case 2:
            return 19;
        default:
            return 20;
    }
}

// What the rearmost chip that can move is worth beyond the others: more when it has lost touch
// with its companions. NINGUNO is above every point, so with nobody ahead the distance is negative
// and the chip counts as not out of touch.
int Busqueda::Premio_Por_Zaguero(Integer origen) const {
    const int distancia = origen - Buscar_Cafes(static_cast<Integer>(origen - 1), 0);
    if (distancia >= DISTANCIA_DE_REZAGADO) return 2;
    const bool en_mi_mitad = origen <= FIN_DE_MI_MITAD;
    const auto siguiente = static_cast<Integer>(origen + 1);
    return en_mi_mitad && Buscar_Cafes(siguiente, FONDO) == NINGUNO ? 3 : 1;
}

int Busqueda::Premio_Por_Destino(Integer destino) const {
    const Integer fichas = Fichas_En(destino).Cuenta();
    if (fichas == 0) return -1;
    return fichas == 1 && Dueno_De(destino) == CAFE ? 4 : 2;
}

void Busqueda::Sacar(Integer& LDado1, Integer& Ldado2) {
    const auto p = static_cast<Integer>(LDado1 - 1);
    const auto q = static_cast<Integer>(Ldado2 - 1);
    if (Es_Punto_Cafe(p)) {
        Sacar_Desde(p);
    } else if (Buscar_Cafes(p, ULTIMO_DE_CASA) == NINGUNO) {
        // After a hit there may be no chip at home at all, although all were home once.
        const Byte mas_alta = Buscar_Cafes(p, 0);
        if (mas_alta != NINGUNO) {
            Sacar_Desde(mas_alta);
        } else {
            Buscar_Tiro(LDado1, Ldado2);
        }
    } else if (Es_Punto_Cafe(q)) {
        Sacar_Desde(q);
    } else {
        Buscar_Tiro(LDado1, Ldado2);
    }
}

}  // namespace corvanda
