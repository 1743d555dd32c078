// The program as people start it: its beginning, its end, and files that are not as they should be.
#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QTest>
#include <functional>

#include "tests/app/proceso.h"

namespace corvanda::pruebas {
namespace {

TEST(Programa, runs_until_the_system_ends_it_and_saves_nothing) {
    for (const int senal : {SIGTERM, SIGINT, SIGHUP}) {
        Programa programa;
        ASSERT_TRUE(programa.Empezar());
        EXPECT_TRUE(programa.Sigue_Viva());
        EXPECT_EQ(programa.Terminar(senal), 0) << senal;
        EXPECT_FALSE(QFileInfo::exists(programa.Archivo_De_Ajustes()));
    }
}

// Each of these is a moment of the start: before the window, while it is painted first, after it.
TEST(Programa, ends_whenever_in_its_start_the_system_asks) {
    for (const int milisegundos : {0, 5, 20, 40, 80, 150}) {
        Programa programa;
        ASSERT_TRUE(programa.Empezar());
        QTest::qSleep(milisegundos);
        EXPECT_EQ(programa.Terminar(), 0)
            << "asked " << milisegundos << " ms after it could listen";
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
    for (const auto& fila : tabla) {
        SCOPED_TRACE(fila.que);
        Programa programa;
        programa.Copiar();
        int cuantos = 0;
        QDirIterator archivos(programa.Carpeta(), QDir::Files, QDirIterator::Subdirectories);
        while (archivos.hasNext()) {
            QFile archivo(archivos.next());
            if (QFileInfo(archivo).fileName() == "corvanda") continue;
            fila.dano(archivo);
            ++cuantos;
        }
        EXPECT_GE(cuantos, 20);
        ASSERT_TRUE(programa.Empezar());
        EXPECT_TRUE(programa.Sigue_Viva());
        EXPECT_EQ(programa.Terminar(), 0);
    }
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
    for (const auto& fila : tabla) {
        SCOPED_TRACE(fila.que);
        Programa programa;
        fila.prepara(programa);
        ASSERT_TRUE(programa.Empezar());
        EXPECT_TRUE(programa.Sigue_Viva());
        EXPECT_EQ(programa.Terminar(), 0);
    }
}

}  // namespace
}  // namespace corvanda::pruebas
