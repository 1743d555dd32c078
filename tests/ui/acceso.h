// The real main window over the journaling desktop, for those who play it with keys alone.
#pragma once

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTest>
#include <QWindow>

#include "tests/apoyo/diario.h"
#include "tests/apoyo/escritorio.h"
#include "tests/apoyo/posicion.h"
#include "ui/frm_principal.h"

namespace corvanda::pruebas {

struct Sin_Raton {
    explicit Sin_Raton(const std::string& posicion) {
        frm.Form_Load();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&frm));
        // At large device pixel ratios the test's screen is smaller than the case.
        if (frm.width() < tablero.width()) frm.showNormal();
        partida.Sonido = False;
        Poner(frm.Mesa(), partida, posicion);
        QCoreApplication::processEvents();
        escritorio.Leer();
    }

    /// Letters for keys: left, right, up, down, Home, End, tab, back, space, Enter, X for Esc, and
    /// p for the pass. They arrive at the window; the toolkit finds the control.
    void Teclas(const std::string& letras) {
        constexpr Qt::Key TECLAS[] = {Qt::Key_Left,   Qt::Key_Right,   Qt::Key_Up,
                                      Qt::Key_Down,   Qt::Key_Home,    Qt::Key_End,
                                      Qt::Key_Tab,    Qt::Key_Backtab, Qt::Key_Space,
                                      Qt::Key_Return, Qt::Key_Escape,  Qt::Key_F9};
        for (const char letra : letras) {
            const auto cual = std::string("lrudHEtbs\nXp").find(letra);
            QTest::keyClick(frm.windowHandle(), TECLAS[cual]);
        }
    }
    /// Brings the frame to a place (as in LST) with the arrow keys, row by row.
    void Ir(Integer lugar) {
        Teclas("uuH");
        for (int i = 0; i < 27 && teclado.Elegido() != lugar; ++i) Teclas(i == 13 ? "dH" : "r");
        EXPECT_EQ(teclado.Elegido(), lugar);
    }
    /// Takes the top chip of a place and drops it on another one.
    void Jugar(Integer desde, Integer hasta) {
        Ir(desde);
        Teclas("s");
        Ir(hasta);
        Teclas("\n");
    }

    Escritorio escritorio;
    Partida partida = Diseno();
    Estampas estampas{QCoreApplication::applicationDirPath() + "/imagenes"};
    Guion computadora;
    FrmPrincipal frm{partida,
                     {escritorio, escritorio, escritorio, escritorio, escritorio, escritorio,
                      escritorio, escritorio},
                     Escala(),
                     estampas,
                     &computadora};
    Estuche& tablero = frm.Tablero();
    Teclado& teclado = tablero.Teclas();
};

}  // namespace corvanda::pruebas
