// Chips that move by themselves, as the window shows them when they set out and when they have come
// to their place, and the pointer's shape.
#include <QScreen>

#include "desktop/reduced_motion.h"
#include "tests/ui/ventana.h"

namespace corvanda::pruebas {
namespace {

using enum Arreglo;

class Vuelo : public testing::Test {
  protected:
    ~Vuelo() override { Querer_Animaciones(true); }
    /// The desktop tells of the person's wish.
    void Querer_Animaciones(bool quiere) {
        QMetaObject::invokeMethod(
            &escritorio, "Changed", Q_ARG(QString, "org.gnome.desktop.interface"),
            Q_ARG(QString, "enable-animations"), Q_ARG(QDBusVariant, QDBusVariant(quiere)));
    }

    /// The part of the lower half where no die lies.
    static QRect Franja(const Ventana& v) {
        return {v.raton.En_Ventana({800, 4200}), v.raton.En_Ventana({8700, 5900})};
    }
    /// As it stands on the screen, which is not all painted anew.
    static QImage Abajo(Ventana& v) {
        QCoreApplication::processEvents();
        return v.frm.screen()->grabWindow(v.frm.winId()).copy(Franja(v)).toImage();
    }
    /// The middle of all that differs, pixels from the left; -1 for nothing.
    static int Medio(const QImage& una, const QImage& otra) {
        int izquierda = una.width(), derecha = -1;
        for (int y = 0; y < una.height(); ++y) {
            for (int x = 0; x < una.width(); ++x) {
                if (una.pixel(x, y) == otra.pixel(x, y)) continue;
                izquierda = std::min(izquierda, x);
                derecha = std::max(derecha, x);
            }
        }
        return derecha < 0 ? -1 : (izquierda + derecha) / 2;
    }

    /// Whether anything shows left of the middle, where only a chip on its way can be.
    static bool En_El_Aire(Ventana& v, const QImage& antes) {
        const QRect izquierda(0, 0, antes.width() / 2, antes.height());
        return Abajo(v).copy(izquierda) != antes.copy(izquierda);
    }

    /// Until all that moves has come to its place.
    static void Dejar_Volar(Ventana& v) {
        ASSERT_TRUE(
            QTest::qWaitFor([&] { return v.frm.Tablero().Quieto() && !v.Flotante().isVisible(); }));
    }

    ReducedMotion escritorio;
};

TEST_F(Vuelo, A_Chip_Of_The_Computer_Glides_At_Each_Speed_That_Leaves_Time_For_It) {
    const struct {
        Integer Velocidad;
        bool animaciones, vuela;
    } tabla[] = {{1, true, false},  {5, true, false},  {8, true, true},
                 {100, true, true}, {200, true, true}, {100, false, false}};
    for (const auto& fila : tabla) {
        SCOPED_TRACE(fila.Velocidad);
        Querer_Animaciones(fila.animaciones);
        Guion computadora;
        Ventana v(Ventana::Cajas::Diario, &computadora);
        v.Poner("B 0x15 | C 22x1 7x14 | turn B | dice 5 0");
        v.partida.Nivel = PRINCIPIANTE;
        v.partida.Velocidad = fila.Velocidad;
        v.escritorio.Dados({6, 1});
        const Integer ficha = Pila_En(v.partida, 22).Tope();
        std::vector<QImage> vistas{Abajo(v)};
        computadora.turno = [&](Juego& juego) {
            juego.Poner_Origen(22);
            juego.Mover(CAFE, ficha, 16);
            vistas.push_back(Abajo(v));
        };
        v.raton.Arrastrar(v.Centro({Blanca, 14}), v.Base(5));
        ASSERT_EQ(vistas.size(), 2U);
        Dejar_Volar(v);
        vistas.push_back(Abajo(v));
        Image& imagen = v.partida.Cafe.at(static_cast<std::size_t>(ficha));
        const Image antes = imagen;
        imagen.Visible = false;
        v.frm.Tablero().Refrescar({Cafe, ficha}, antes);
        const QImage sin_ficha = Abajo(v);
        std::vector<int> lugares;
        for (const QImage& vista : vistas) lugares.push_back(Medio(vista, sin_ficha));
        const int fin = v.raton.En_Ventana(v.Centro({Cafe, ficha})).x() - Franja(v).left();
        EXPECT_GT(std::abs(lugares[0] - fin), 100);
        EXPECT_NEAR(lugares[1], fila.vuela ? lugares[0] : fin, 8) << "as soon as it has moved";
        EXPECT_NEAR(lugares[2], fin, 8) << "whole at its new place";
    }
}

TEST_F(Vuelo, A_Refused_Chip_Goes_Back_And_Is_As_It_Was) {
    for (const bool animaciones : {true, false}) {
        SCOPED_TRACE(animaciones);
        Querer_Animaciones(animaciones);
        Ventana v;
        v.Poner("B 0x14 16x1 | C 5x15 | turn B | dice 5 4");
        const Lugar casa = v.Centro({Blanca, Pila_En(v.partida, 16).Tope()});
        v.raton.Ir(v.Base(19));
        const QImage antes = Abajo(v);
        v.raton.Arrastrar(casa, v.Base(19));
        EXPECT_EQ(v.Leer(), Diario{}) << "no die pays, and nothing is said";
        EXPECT_EQ(En_El_Aire(v, antes), animaciones);
        Dejar_Volar(v);
        EXPECT_TRUE(Abajo(v) == antes);
    }
}

TEST(Puntero, Is_A_Hand_Over_What_May_Be_Taken_And_Over_Nothing_Else) {
    const struct {
        const char* posicion;
        Control control;
        bool mano;
    } tabla[] = {
        {"dice 5 4", {Blanca, 11}, true},
        {"dice 5 4", {Cafe, 0}, false},
        {"turn C | dice 5 4", {Cafe, 0}, true},
        {"turn C | dice 5 4", {Blanca, 11}, false},
        {"B 0x14 bar1 | C 5x15 | dice 5 4", {Blanca, 14}, true},
        {"B 0x14 bar1 | C 5x15 | dice 5 4", {Blanca, 0}, false},
        {"dice 5 4", {Dado, 0}, false},
        {"dice 5 4", {Triangle, 9}, false},
    };
    for (const auto& fila : tabla) {
        Ventana v;
        v.Poner(fila.posicion);
        const auto mano = [&] {
            v.raton.Ir(v.Base(3));
            v.raton.Ir(v.Centro(fila.control));
            return v.frm.Tablero().cursor().shape() != Qt::ArrowCursor;
        };
        EXPECT_EQ(mano(), fila.mano) << fila.posicion << ' ' << fila.control.Index;
        v.partida.Jugando = False;
        EXPECT_FALSE(mano()) << "no game is running";
    }
}

}  // namespace
}  // namespace corvanda::pruebas
