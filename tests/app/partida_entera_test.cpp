// The program put together, in this process: whole games by mouse and keys, from the menu to the
// winner's box, and ends that come in the middle of something.
#include <gtest/gtest.h>

#include <QFile>
#include <QStandardPaths>
#include <QTest>
#include <csignal>

#include "app/aplicacion.h"
#include "desktop/settings_file.h"
#include "tests/apoyo/diario.h"
#include "tests/ui/ventana.h"

namespace corvanda::pruebas {
namespace {

/// Repeatable chance: the time of day has no say.
struct Azar_Fijo final : RandomNumbers {
    explicit Azar_Fijo(std::uint32_t semilla) : azar(semilla) {}
    double Rnd() override { return azar.Rnd(); }
    void Randomize() override {}
    Random azar;
};

QString Archivo_De_Ajustes() {
    return qEnvironmentVariable("XDG_CONFIG_HOME") + "/corvanda/settings.json";
}

QByteArray Ajustes_Guardados() {
    QFile archivo(Archivo_De_Ajustes());
    return archivo.open(QIODevice::ReadOnly) ? archivo.readAll() : QByteArray();
}

void Guardar_Ajustes(const std::string& nivel, const std::string& velocidad) {
    SettingsFile almacen;
    const std::string aplicacion = ProgramFolder().Path() + "\\Corvanda.Ini";
    almacen.SaveSetting(aplicacion, "Config", "Nivel", nivel);
    almacen.SaveSetting(aplicacion, "Config", "Velocidad", velocidad);
    ASSERT_EQ(almacen.Commit(), "");
}

/// The program with its main window in front and somebody who answers what it says.
class Sesion {
  public:
    explicit Sesion(std::uint32_t semilla) : azar(semilla), programa(azar) {
        programa.Mostrar_Principal();
        const auto en_frente = [this] {
            if (programa.Ventana().isActiveWindow()) return true;
            QWidget* otra = QApplication::activeWindow();
            if (otra != nullptr) QTest::keyClick(otra, Qt::Key_Space);  // the start-up screen
            return false;
        };
        EXPECT_TRUE(QTest::qWaitFor(en_frente, 20000));
        vigilante.Siempre([this](QWidget& ventana) { Contestar(ventana); });
    }

    /// Plays for both sides, or for White against the computer, up to the winner's box.
    void Jugar(const char* entrada) {
        raton.Elegir("mnuGame", entrada);
        ASSERT_TRUE(QTest::qWaitFor([this] { return Estado().Jugando == True; }, 60000));
        for (acciones = 0; Estado().Jugando != False && acciones < 3000; ++acciones) {
            Jugar_Una();
            ASSERT_TRUE(Es_Valida(Estado())) << Texto(Estado());
        }
        ASSERT_EQ(Estado().Jugando, False) << "no end after " << acciones << " actions";
    }

    const Partida& Estado() { return programa.Estado(); }

    Azar_Fijo azar;
    Aplicacion programa;
    Vigilante vigilante;
    Raton_De_Pruebas raton{programa.Ventana()};
    int acciones = 0;

  private:
    void Jugar_Una() {
        const Jugada jugada = Elegir(Estado());
        if (jugada.clase == Jugada::Clase::Pasar) {
            // Only an active window has shortcuts, and nobody makes one active when a dialog ends.
            programa.Ventana().activateWindow();
            ASSERT_TRUE(QTest::qWaitForWindowActive(&programa.Ventana()));
            QTest::keyClick(&programa.Ventana(), Qt::Key_F9);
        } else {
            raton.Arrastrar(Agarre(Estado(), jugada), Meta(Estado(), jugada));
        }
    }
    void Contestar(QWidget& ventana) {
        if (ventana.objectName() == "FrmVolado") return Sortear(ventana);
        Pulsar(ventana, "OK");
    }
};

/// The boxes of a game: passes, and the winner's at its end.
void Comprobar_Cajas(const std::vector<std::string>& cajas) {
    ASSERT_FALSE(cajas.empty());
    EXPECT_TRUE(cajas.back() == GANA_BLANCA || cajas.back() == GANA_CAFE) << cajas.back();
    for (std::size_t i = 0; i + 1 < cajas.size(); ++i) {
        EXPECT_TRUE(cajas[i].starts_with("caja 64 [Corvanda] The player with ") &&
                    cajas[i].ends_with(" chips passed"))
            << cajas[i];
    }
}

TEST(Partida_Entera, by_two_people_and_against_the_computer_at_each_level) {
    const struct {
        const char *entrada, *nivel, *velocidad;
        std::uint32_t semilla;
        Byte Nivel;
        std::size_t pases;
    } tabla[] = {
        {"mnuNew", "Avanzado", "0", 1, DOS_PERSONAS, 0},
        {"mnuNew", "Avanzado", "0", 10, DOS_PERSONAS, 1},
        {"mnuVs", "Principiante", "0", 10, PRINCIPIANTE, 1},
        {"mnuVs", "Avanzado", "0", 12, AVANZADO, 4},
        {"mnuVs", "Avanzado", "7", 8, AVANZADO, 2},  // long enough for its chips to glide
    };
    for (const auto& fila : tabla) {
        SCOPED_TRACE(std::string(fila.nivel) + " " + fila.velocidad);
        Guardar_Ajustes(fila.nivel, fila.velocidad);
        Sesion sesion(fila.semilla);
        sesion.Jugar(fila.entrada);
        Comprobar_Cajas(sesion.vigilante.cajas);
        EXPECT_EQ(sesion.vigilante.cajas.size(), fila.pases + 1);
        EXPECT_EQ(sesion.Estado().Nivel, fila.Nivel);
        EXPECT_TRUE(Pila_En(sesion.Estado(), BANDEJA_CAFE).Cuenta() == FICHAS ||
                    Pila_En(sesion.Estado(), BANDEJA_BLANCA).Cuenta() == FICHAS);
    }
}

TEST(Sesion, settings_are_kept_from_one_start_to_the_next) {
    QFile::remove(Archivo_De_Ajustes());
    for (const char* nivel : {"Principiante", "Avanzado"}) {
        Sesion sesion(3);
        sesion.vigilante.Siempre([](QWidget& caja) { QTest::keyClick(&caja, Qt::Key_Return); });
        EXPECT_EQ(sesion.programa.Ventana().findChild<QAction*>("mnuLev2")->isChecked(),
                  *nivel == 'A');
        QTimer::singleShot(0, [&] {
            sesion.programa.Ventana().mnuLev_Click(2);
            sesion.programa.Ventana().close();
        });
        EXPECT_EQ(QApplication::exec(), 0);
        EXPECT_TRUE(Ajustes_Guardados().contains("\"Nivel\": \"Avanzado\""));
    }
}

TEST(Sesion, a_new_game_again_and_again_in_the_middle_of_the_computers_turn) {
    Guardar_Ajustes("Avanzado", "3");
    Sesion sesion(9);
    FrmPrincipal& ventana = sesion.programa.Ventana();
    int veces = 0;
    QTimer impaciente;
    QObject::connect(&impaciente, &QTimer::timeout, [&] {
        if (veces < 6 && ventana.Mesa().Computadora_Juega() && ++veces > 0) {
            QTest::keyClick(&ventana, Qt::Key_C, Qt::ControlModifier);
        }
    });
    impaciente.start(17);
    sesion.Jugar("mnuVs");
    EXPECT_EQ(veces, 6);
    Comprobar_Cajas(sesion.vigilante.cajas);
}

TEST(Sesion, the_system_ends_it_in_the_middle_of_anything) {
    const struct {
        const char* que;
        std::function<void(Sesion&)> empieza;
    } tabla[] = {
        {"the throw for the computer",
         [](Sesion& s) {
             s.vigilante.Esperar([](QWidget& dialogo) {
                 std::raise(SIGTERM);
                 QTest::keyClick(&dialogo, Qt::Key_Return);
             });
             s.programa.Ventana().mnuVs_Click();
         }},
        {"the missing help file", [](Sesion& s) { s.programa.Ventana().mnuIndice_Click(); }},
        {"the speed dialog", [](Sesion& s) { s.programa.Ventana().mnuVel_Click(); }},
        {"About", [](Sesion& s) { s.programa.Ventana().mnuAcerca_Click(); }},
        {"the question before the end", [](Sesion& s) { s.programa.Ventana().mnuSalir_Click(); }},
        {"a refused pass",
         [](Sesion& s) {
             Poner(s.programa.Ventana().Mesa(), s.programa.Estado(), "dice 5 4");
             s.programa.Ventana().Mesa().mnuPasar_Click();
         }},
        {"the winner's box",
         [](Sesion& s) {
             Poner(s.programa.Ventana().Mesa(), s.programa.Estado(), "B 23x1 | C 5x15 | dice 6 5");
             s.raton.Arrastrar(Agarre(s.Estado(), Elegir(s.Estado())),
                               Meta(s.Estado(), Elegir(s.Estado())));
         }},
        {"the computer's turn",
         [](Sesion& s) {
             s.vigilante.Siempre(Sortear);
             const auto toca = [&s] { return s.programa.Ventana().Mesa().Computadora_Juega(); };
             QTimer aviso;
             QObject::connect(&aviso, &QTimer::timeout, [&] {
                 if (toca()) std::raise(SIGTERM);
             });
             aviso.start(5);
             for (int i = 0; i < 20 && !s.programa.Ventana().Mesa().Cerrando(); ++i) {
                 s.programa.Ventana().mnuVs_Click();
             }
         }},
    };
    for (const auto& fila : tabla) {
        SCOPED_TRACE(fila.que);
        Guardar_Ajustes("Avanzado", "50");
        const QByteArray antes = Ajustes_Guardados();
        Sesion sesion(11);
        sesion.vigilante.Siempre([](QWidget&) { std::raise(SIGTERM); });
        bool volvio = false;
        QTimer::singleShot(0, [&] {
            fila.empieza(sesion);
            volvio = true;
        });
        EXPECT_EQ(QApplication::exec(), 0);
        EXPECT_TRUE(volvio) << "nothing is left on the stack";
        EXPECT_EQ(Ajustes_Guardados(), antes);
    }
}

}  // namespace
}  // namespace corvanda::pruebas
