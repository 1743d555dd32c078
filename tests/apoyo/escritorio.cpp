#include "tests/apoyo/escritorio.h"

#include <gtest/gtest.h>

namespace corvanda::pruebas {

Integer Escritorio::MsgBox(const std::string& text, Integer style, const std::string& title) {
    diario.push_back("caja " + std::to_string(style) + " [" + title + "] " + text);
    if (respuestas.empty()) {
        EXPECT_TRUE(contesta_siempre) << "nobody expected the box: " << text;
        return button::Ok;
    }
    const auto [boton, mientras] = std::move(respuestas.front());
    respuestas.pop_front();
    if (mientras) mientras();
    return boton;
}

void Escritorio::DoEvents() {
    const int este = ++pases;
    while (acciones.contains(este)) acciones.extract(este).mapped()();
}

double Escritorio::Rnd() {
    if (azares.empty()) {
        EXPECT_TRUE(generador) << "nobody queued a random number";
        return generador ? generador->Rnd() : 0;
    }
    const double numero = azares.front();
    azares.pop_front();
    return numero;
}

void Escritorio::WinHelp(const std::string& file, Integer command, Integer context) {
    diario.push_back("ayuda " + file + " " + std::to_string(command) + " " +
                     std::to_string(context));
}

void Escritorio::Iniciar_Arrastre(Control ficha) {
    arrastrada = ficha;
    diario.push_back(std::string("arrastra ") +
                     (ficha.Nombre == Arreglo::Blanca ? "Blanca(" : "Cafe(") +
                     std::to_string(ficha.Index) + ")");
}

}  // namespace corvanda::pruebas
