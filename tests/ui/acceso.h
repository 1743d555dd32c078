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
        if (frm.width() < Tablero().width()) frm.showNormal();
        Poner(posicion);
    }

    void Poner(const std::string& posicion) {
        partida.Sonido = False;
        pruebas::Poner(frm.Mesa(), partida, posicion);
        QCoreApplication::processEvents();
        escritorio.Leer();
    }

    /// Keys arrive at the window; the toolkit finds the control.
    void Tecla(Qt::Key tecla, Qt::KeyboardModifiers con = {}) {
        QTest::keyClick(frm.windowHandle(), tecla, con);
    }
    void Teclas(Qt::Key tecla, int veces) {
        for (int i = 0; i < veces; ++i) Tecla(tecla);
    }
    /// Letters for keys: left, right, up, down, Home, End, tab, back, space, Enter, and X for Esc.
    void Teclas(const std::string& letras) {
        for (const char letra : letras) {
            const std::size_t cual = std::string("lrudHEtbs\nX").find(letra);
            constexpr Qt::Key TECLAS[] = {Qt::Key_Left,   Qt::Key_Right,   Qt::Key_Up,
                                          Qt::Key_Down,   Qt::Key_Home,    Qt::Key_End,
                                          Qt::Key_Tab,    Qt::Key_Backtab, Qt::Key_Space,
                                          Qt::Key_Return, Qt::Key_Escape};
            Tecla(TECLAS[cual]);
        }
    }
    /// Brings the frame to a place (as in LST) with the arrow keys: to the corner, then by
    /// counting.
    void Ir(Integer lugar) {
        const bool arriba = lugar < 12 || lugar == BARRA_BLANCA || lugar == BANDEJA_CAFE;
        int columna = lugar < 12 ? 2 + lugar : 25 - lugar;
        if (lugar >= PUNTOS) columna = lugar == BARRA_BLANCA || lugar == BARRA_CAFE ? 1 : 0;
        if (!Teclado_De().A_La_Vista()) Tecla(Qt::Key_Up);
        Tecla(arriba ? Qt::Key_Up : Qt::Key_Down);
        Tecla(Qt::Key_Home);
        Teclas(Qt::Key_Right, columna);
        EXPECT_EQ(Teclado_De().Elegido(), lugar);
    }
    /// Takes the top chip of a place and drops it on another one.
    void Jugar(Integer desde, Integer hasta) {
        Ir(desde);
        Tecla(Qt::Key_Space);
        Ir(hasta);
        Tecla(Qt::Key_Return);
    }

    Diario Leer() {
        Diario diario = escritorio.Leer();
        std::erase_if(diario, [](const auto& linea) { return linea.starts_with("puntero"); });
        return diario;
    }
    Estuche& Tablero() { return frm.Tablero(); }
    Teclado& Teclado_De() { return frm.Tablero().Teclas(); }

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
};

}  // namespace corvanda::pruebas
