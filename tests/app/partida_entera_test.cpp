// The program put together, in this process: whole games by mouse and keys, from the menu to the
// winner's box, and ends that come in the middle of something.
#include <csignal>

#include "app/aplicacion.h"
#include "desktop/settings_file.h"
#include "tests/desktop/desk.h"
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
        EXPECT_TRUE(QTest::qWaitForWindowActive(&programa.Ventana(), 20000));
        vigilante.Siempre([](QWidget& ventana) {
            ventana.objectName() == "FrmVolado" ? Sortear(ventana) : Pulsar(ventana, "OK");
        });
    }

    /// Plays for both sides, or for White against the computer, up to the winner's box.
    void Jugar(const char* entrada) {
        raton.Elegir("mnuGame", entrada);
        ASSERT_TRUE(QTest::qWaitFor([this] { return Estado().Jugando == True; }, 60000));
        for (int acciones = 0; Estado().Jugando != False && acciones < 3000; ++acciones) {
            Jugar_Una();
            ASSERT_TRUE(Es_Valida(Estado())) << Texto(Estado());
        }
    }
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
    Juego& Poner(const char* posicion) {
        pruebas::Poner(programa.Ventana().Mesa(), programa.Estado(), posicion);
        return programa.Ventana().Mesa();
    }
    const Partida& Estado() { return programa.Estado(); }

    Azar_Fijo azar;
    Aplicacion programa;
    Vigilante vigilante;
    Raton_De_Pruebas raton{programa.Ventana()};
};

TEST(Partida_Entera, by_two_people_and_against_the_computer_at_each_level) {
    const struct {
        const char *entrada, *nivel, *velocidad;
        std::uint32_t semilla;
        Byte Nivel;
        std::size_t pases;
    } tabla[] = {
        {"mnuNew", "Avanzado", "0", 10, DOS_PERSONAS, 1},
        {"mnuVs", "Principiante", "0", 10, PRINCIPIANTE, 1},
        {"mnuVs", "Avanzado", "2", 8, AVANZADO, 2},
    };
    for (const auto& fila : tabla) {
        SCOPED_TRACE(std::string(fila.nivel) + " " + fila.velocidad);
        Guardar_Ajustes(fila.nivel, fila.velocidad);
        Sesion sesion(fila.semilla);
        sesion.Jugar(fila.entrada);
        const auto& cajas = sesion.vigilante.cajas;
        ASSERT_EQ(cajas.size(), fila.pases + 1);
        EXPECT_EQ(cajas.back(), GANA_BLANCA);
        for (std::size_t i = 0; i < fila.pases; ++i) EXPECT_TRUE(cajas[i].ends_with(" passed"));
        EXPECT_EQ(sesion.Estado().Nivel, fila.Nivel);
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
        EXPECT_TRUE(ReadBytes(Archivo_De_Ajustes()).contains("\"Nivel\": \"Avanzado\""));
    }
}

TEST(Sesion, the_system_ends_it_in_the_middle_of_anything_without_saving) {
    const std::pair<const char*, void (*)(Sesion&)> tabla[] = {
        {"the throw", [](Sesion& s) { s.programa.Ventana().mnuVs_Click(); }},
        {"the missing help file", [](Sesion& s) { s.programa.Ventana().mnuIndice_Click(); }},
        {"the speed dialog", [](Sesion& s) { s.programa.Ventana().mnuVel_Click(); }},
        {"About", [](Sesion& s) { s.programa.Ventana().mnuAcerca_Click(); }},
        {"the question before the end", [](Sesion& s) { s.programa.Ventana().mnuSalir_Click(); }},
        {"a refused pass", [](Sesion& s) { s.Poner("dice 5 4").mnuPasar_Click(); }},
        {"the winner's box",
         [](Sesion& s) {
             s.Poner("B 23x1 | C 5x15 | dice 6 5");
             s.Jugar_Una();
         }},
    };
    for (const auto& [que, empieza] : tabla) {
        SCOPED_TRACE(que);
        Guardar_Ajustes("Avanzado", "50");
        const QByteArray antes = ReadBytes(Archivo_De_Ajustes());
        Sesion sesion(11);
        sesion.vigilante.Siempre([](QWidget&) { std::raise(SIGTERM); });
        bool volvio = false;
        QTimer::singleShot(0, [&, que_empieza = empieza] {
            que_empieza(sesion);
            volvio = true;
        });
        EXPECT_EQ(QApplication::exec(), 0);
        EXPECT_TRUE(volvio) << "nothing is left on the stack";
        EXPECT_EQ(ReadBytes(Archivo_De_Ajustes()), antes);
    }
}

}  // namespace
}  // namespace corvanda::pruebas
