// What moves on the board by itself, and when: a chip of the computer on its way, a chip that was
// hit and goes to its bar once the other has landed, dice that come in after the last chip, and a
// chip that shakes because it was refused. It says where each is to be drawn at a time and changes
// nothing: the game has long gone on.
//
// Places are twips in the case, times milliseconds of any clock that the caller keeps.
#pragma once

#include <QPointF>
#include <cstdint>
#include <optional>
#include <vector>

#include "core/control.h"

namespace corvanda {

class Secuencia {
  public:
    using Tiempo = std::int64_t;

    /// How an image is drawn while it moves.
    struct Pose {
        QPointF esquina;       ///< its upper left corner
        qreal giro = 0;        ///< degrees
        qreal opacidad = 1;    ///< 0: not to be seen yet
        bool rechazo = false;  ///< with a red rim
    };

    /// Longest times.
    static constexpr int VUELO = 450;
    static constexpr int COMIDA = 260;
    static constexpr int TIRO = 340;
    static constexpr int RECHAZO = 700;

    /// How long the computer's chip glides when the next move comes after a pause; 0 not at all.
    static int Vuelo_Para(int pausa, double distancia);

    /// A chip is on its way from one place to another. What was to move next waits until it lands.
    void Volar(Control ficha, QPointF desde, QPointF hasta, int dura);
    /// A chip was hit: it stays until the one that hit it, if any is on its way, has landed.
    void Comer(Control ficha, QPointF desde, QPointF hasta, int dura);
    /// A die was thrown: it comes in when nothing else moves.
    void Tirar(Control dado, QPointF hasta);
    /// A chip was refused; with `quieta` it only shows so.
    void Rechazar(Control ficha, QPointF donde, bool quieta);

    /// The time goes on; what has come to its end is forgotten.
    void Avanzar(Tiempo nuevo);
    /// All is where it belongs, at once.
    void Terminar() { pasos.clear(); }
    void Terminar(Control que);

    bool Quieta() const { return pasos.empty(); }
    /// What moves or waits to move, now.
    std::vector<Control> Presentes() const;
    /// Nothing for an image that stands where its state says.
    std::optional<Pose> Pose_De(Control que) const;

  private:
    enum class Clase { Vuelo, Comida, Tiro, Rechazo };
    struct Paso {
        Control que;
        Clase clase;
        QPointF desde, hasta;
        Tiempo empieza;
        int dura;
        bool quieta = false;
        Tiempo Acaba() const { return empieza + dura; }
    };

    void Poner(const Paso& nuevo);
    Tiempo Fin_De_Las_Fichas() const;

    std::vector<Paso> pasos;
    Tiempo ahora = 0;
};

}  // namespace corvanda
