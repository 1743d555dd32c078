// The program on an X screen with a window manager, played from outside by keys. Skipped where the
// programs that make such a screen are missing.
#include <gtest/gtest.h>

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTest>

#include "tests/app/proceso.h"

namespace corvanda::pruebas {
namespace {

class Pantalla_X : public testing::Test {
  protected:
    void SetUp() override {
        for (const char* uno : {"Xvfb", "openbox", "xdotool"}) {
            if (QStandardPaths::findExecutable(uno).isEmpty()) GTEST_SKIP() << uno << " is missing";
        }
        xvfb.start("Xvfb", {"-displayfd", "1", "-screen", "0", "1280x800x24", "-nolisten", "tcp"});
        ASSERT_TRUE(xvfb.waitForReadyRead(20000)) << "no virtual screen";
        pantalla = ":" + QString(xvfb.readLine()).trimmed();
        QProcessEnvironment entorno = QProcessEnvironment::systemEnvironment();
        entorno.insert("DISPLAY", pantalla);
        entorno.insert("XDG_CACHE_HOME", casa.path());
        entorno.insert("XDG_CONFIG_HOME", casa.path());
        openbox.setProcessEnvironment(entorno);
        xdotool.setProcessEnvironment(entorno);
        openbox.start("openbox", {"--sm-disable", "--startup", "touch " + casa.filePath("listo")});
        ASSERT_TRUE(
            QTest::qWaitFor([this] { return QFile::exists(casa.filePath("listo")); }, 20000));
    }
    void TearDown() override {
        for (QProcess* proceso : {&openbox, &xvfb}) {
            proceso->terminate();
            proceso->waitForFinished();
        }
    }

    /// Starts the program and waits until its main window, or the one named, takes keys.
    void Empezar(Programa& programa) {
        programa.Poner("DISPLAY", pantalla);
        programa.Poner("QT_QPA_PLATFORM", "xcb");
        programa.Poner("LSAN_OPTIONS", "detect_leaks=0");  // the X libraries keep what they read
        ASSERT_TRUE(programa.Empezar());
        Esperar("^Corvanda$");
    }
    void Esperar(const QString& titulo) {
        const auto activa = [&] {
            if (Mandar({"getactivewindow", "getwindowname"})
                    .trimmed()
                    .contains(QRegularExpression(titulo))) {
                return true;
            }
            // A click ends the start-up screen.
            if (titulo == "^Corvanda$") Mandar({"mousemove", "5", "795", "click", "1"});
            return false;
        };
        ASSERT_TRUE(QTest::qWaitFor(activa, 20000)) << titulo.toStdString();
    }
    QString Mandar(const QStringList& orden) {
        xdotool.start("xdotool", orden);
        xdotool.waitForFinished();
        return QString::fromUtf8(xdotool.readAllStandardOutput());
    }
    void Teclas(const QStringList& teclas) { Mandar(QStringList{"key", "--delay", "60"} + teclas); }

    /// Leaves by the menu and says yes.
    int Salir(Programa& programa) {
        Teclas({"alt+x"});
        Esperar("Exit");
        Teclas({"Return"});
        return programa.Esperar_Fin();
    }
    QJsonObject Ajustes(const Programa& programa) {
        const QJsonObject todo = QJsonDocument::fromJson(programa.Leer_Ajustes()).object();
        const QString aplicacion = programa.Carpeta() + "\\Corvanda.Ini";
        EXPECT_EQ(todo.keys(), QStringList{aplicacion});
        return todo[aplicacion].toObject()["Config"].toObject();
    }

    QString pantalla;

  private:
    QTemporaryDir casa;
    QProcess xvfb, openbox, xdotool;
};

TEST_F(Pantalla_X, settings_are_kept_from_one_start_to_the_next) {
    const QJsonObject primeros{{"Sonido", "-1"}, {"Nivel", "Principiante"}, {"Velocidad", "100"}};
    const QJsonObject cambiados{{"Sonido", "0"}, {"Nivel", "Avanzado"}, {"Velocidad", "100"}};
    Programa programa;
    Empezar(programa);
    EXPECT_EQ(Salir(programa), 0);
    EXPECT_EQ(Ajustes(programa), primeros);

    Empezar(programa);
    Teclas({"alt+o", "s"});
    Teclas({"alt+o", "Down", "Right", "a"});
    EXPECT_EQ(Salir(programa), 0);
    EXPECT_EQ(Ajustes(programa), cambiados);

    Empezar(programa);
    EXPECT_EQ(Salir(programa), 0);
    EXPECT_EQ(Ajustes(programa), cambiados) << "what was read is what is written";
}

TEST_F(Pantalla_X, a_folder_that_cannot_be_written_gives_one_message_and_the_program_ends) {
    Programa programa;
    QFile tapon(programa.Casa() + "/tapon");
    ASSERT_TRUE(tapon.open(QIODevice::WriteOnly));
    programa.Poner("XDG_CONFIG_HOME", tapon.fileName());
    Empezar(programa);
    Teclas({"alt+x"});
    Esperar("Exit");
    Teclas({"Return"});
    Esperar("^Corvanda$");
    Teclas({"Return"});
    EXPECT_EQ(programa.Esperar_Fin(), 0);
}

TEST_F(Pantalla_X, the_system_ends_it_under_a_box_too) {
    Programa programa;
    Empezar(programa);
    Teclas({"alt+x"});
    Esperar("Exit");
    EXPECT_EQ(programa.Terminar(), 0);
    EXPECT_EQ(programa.Leer_Ajustes(), "(none)");
}

}  // namespace
}  // namespace corvanda::pruebas
