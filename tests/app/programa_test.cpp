// The program as people start it: its beginning, its end, and files that are not as they should be.
#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <functional>
#include <memory>
#include <vector>

#include "tests/app/proceso.h"

namespace corvanda::pruebas {
namespace {

/// Programs that run side by side, because the start-up screen takes its time.
using Programas = std::vector<std::unique_ptr<Programa>>;

Programa& Otro(Programas& programas) {
    return *programas.emplace_back(std::make_unique<Programa>());
}

/// Starts them all; each comes to its main window and ends with 0 when the system asks.
void Comprobar_Que_Juegan(Programas& programas) {
    for (const auto& programa : programas) ASSERT_TRUE(programa->Empezar());
    for (std::size_t i = 0; i < programas.size(); ++i) {
        EXPECT_TRUE(programas[i]->Llega_A_La_Ventana()) << "the number " << i;
        EXPECT_EQ(programas[i]->Terminar(), 0) << "the number " << i;
    }
}

TEST(Programa, ends_by_each_signal_and_saves_nothing) {
    for (const int senal : {SIGTERM, SIGINT, SIGHUP}) {
        Programa programa;
        ASSERT_TRUE(programa.Empezar());
        EXPECT_TRUE(programa.Sigue_Viva_A_Los(300));
        EXPECT_EQ(programa.Terminar(senal), 0) << senal;
        EXPECT_FALSE(QFileInfo::exists(programa.Archivo_De_Ajustes()));
    }
}

// Each of these is a moment of the start: before the first window, while that is painted, and while
// the main window takes its place.
TEST(Programa, ends_whenever_in_its_start_the_system_asks) {
    for (const int milisegundos : {0, 5, 20, 40, 80, 150}) {
        Programa programa;
        ASSERT_TRUE(programa.Empezar());
        programa.Sigue_Viva_A_Los(milisegundos);
        EXPECT_EQ(programa.Terminar(), 0) << "after " << milisegundos << " ms";
    }
    Programas programas;
    for (int i = 0; i < 6; ++i) ASSERT_TRUE(Otro(programas).Empezar());
    for (int i = 0; i < 6; ++i) {
        programas[static_cast<std::size_t>(i)]->Sigue_Viva_A_Los(2950 + 50 * i);
        EXPECT_EQ(programas[static_cast<std::size_t>(i)]->Terminar(), 0) << i;
    }
}

/// What may have happened to a file.
using Dano = std::function<void(QFile&)>;

void Escribir(QFile& archivo, const QByteArray& bytes) {
    ASSERT_TRUE(archivo.open(QIODevice::WriteOnly)) << archivo.fileName().toStdString();
    archivo.write(bytes);
    archivo.close();
}

QByteArray Leer(QFile& archivo) {
    const bool abierto = archivo.open(QIODevice::ReadOnly);
    QByteArray bytes = abierto ? archivo.readAll() : QByteArray();
    archivo.close();
    return bytes;
}

QByteArray Ruido(qsizetype cuantos) {
    QRandomGenerator generador(4711);
    QByteArray bytes(cuantos, ' ');
    for (char& octeto : bytes) octeto = static_cast<char>(generador.bounded(256));
    return bytes;
}

TEST(Programa, starts_and_stays_whatever_has_become_of_its_data_files) {
    const struct {
        const char* que;
        Dano dano;
    } tabla[] = {
        {"missing", [](QFile& archivo) { archivo.remove(); }},
        {"empty", [](QFile& archivo) { archivo.resize(0); }},
        {"half", [](QFile& archivo) { archivo.resize(archivo.size() / 2); }},
        {"noise", [](QFile& archivo) { Escribir(archivo, Ruido(archivo.size())); }},
        {"beginning as it should",
         [](QFile& archivo) { Escribir(archivo, Leer(archivo).left(48) + Ruido(1000)); }},
        {"not to be read", [](QFile& archivo) { archivo.setPermissions({}); }},
    };
    Programas programas;
    for (const auto& fila : tabla) {
        Programa& programa = Otro(programas);
        programa.Copiar();
        int cuantos = 0;
        QDirIterator archivos(programa.Carpeta(), QDir::Files, QDirIterator::Subdirectories);
        while (archivos.hasNext()) {
            QFile archivo(archivos.next());
            if (QFileInfo(archivo).fileName() == "corvanda") continue;
            fila.dano(archivo);
            ++cuantos;
        }
        EXPECT_GE(cuantos, 20) << fila.que;
    }
    Comprobar_Que_Juegan(programas);
}

TEST(Programa, starts_with_any_settings_file) {
    const struct {
        const char* que;
        std::function<void(Programa&)> prepara;
    } tabla[] = {
        {"nonsense",
         [](Programa& p) {
             QDir().mkpath(QFileInfo(p.Archivo_De_Ajustes()).path());
             QFile archivo(p.Archivo_De_Ajustes());
             Escribir(archivo, "{\"\\" + Ruido(5000));
         }},
        {"a folder in its place", [](Programa& p) { QDir().mkpath(p.Archivo_De_Ajustes()); }},
        {"a file where its folder should be",
         [](Programa& p) {
             QFile archivo(p.Casa() + "/tapon");
             Escribir(archivo, "x");
             p.Poner("XDG_CONFIG_HOME", p.Casa() + "/tapon");
         }},
        {"no folder at all",
         [](Programa& p) { p.Poner("XDG_CONFIG_HOME", "/nonexistent/folder"); }},
    };
    Programas programas;
    for (const auto& fila : tabla) fila.prepara(Otro(programas));
    Comprobar_Que_Juegan(programas);
}

}  // namespace
}  // namespace corvanda::pruebas
