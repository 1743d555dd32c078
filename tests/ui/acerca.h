// The start-up screen for tests, over the journaling desktop and a media control that only notes
// what it is told. The test gives the ticks of its clock.
#pragma once

#include <gtest/gtest.h>

#include <QLabel>
#include <QTest>
#include <QTimer>
#include <memory>

#include "tests/apoyo/diario.h"
#include "tests/apoyo/escritorio.h"
#include "tests/ui/ventana.h"
#include "ui/frm_about.h"

namespace corvanda::pruebas {

inline const std::string PELICULA = R"("/opt/juegos de mesa/corvanda\Corvanda.avi")";

/// A media control that notes what it is told, answers the state that the test wants, and shortens
/// the film's name to A.
struct Cine : MediaControl {
    long mciSendString(const std::string& command, std::string& reply) override {
        std::string linea = command;
        const auto sitio = linea.find(PELICULA);
        if (sitio != std::string::npos) linea.replace(sitio, PELICULA.size(), "A");
        diario.push_back(linea);
        reply = command.starts_with("Status") ? estado : "";
        return fallo;
    }
    Diario Leer() { return std::exchange(diario, {}); }

    Diario diario;
    std::string estado = "playing";
    long fallo = 0;
};

class AcercaTest : public testing::Test {
  protected:
    FrmAbout& Hacer(const Escala& escala = {}) {
        acerca.reset();
        acerca = std::make_unique<FrmAbout>(
            nullptr, veces, FrmAbout::Servicios_De_Acerca{cine, escritorio, escritorio}, escala,
            Carpeta_De_Imagenes(), [this] {
                ++veces_mostrada;
                cine.diario.emplace_back("principal");
                EXPECT_FALSE(acerca->isVisible());
                EXPECT_TRUE(escritorio.reloj_de_arena);
            });
        return *acerca;
    }

    /// Shown, without the commands of its loading in the journal.
    FrmAbout& Mostrar() {
        FrmAbout& ventana = Hacer();
        ventana.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&ventana));
        reloj()->stop();  // the test gives the ticks
        cine.Leer();
        return ventana;
    }

    QTimer* reloj() const { return acerca->findChild<QTimer*>("Timer1"); }

    template <typename Control = QWidget>
    Control* De(const char* nombre) const {
        return acerca->findChild<Control*>(nombre);
    }

    bool Cerrada() const { return veces_mostrada > 0; }

    Escritorio escritorio;
    Cine cine;
    Integer veces = 0;
    int veces_mostrada = 0;
    std::unique_ptr<FrmAbout> acerca;
};

}  // namespace corvanda::pruebas
