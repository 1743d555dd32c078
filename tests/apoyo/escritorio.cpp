#include "tests/apoyo/escritorio.h"

#include <gtest/gtest.h>

#include <utility>

namespace corvanda::pruebas {

namespace {

std::string Nombre(Control control) {
    return (control.Nombre == Arreglo::Blanca ? "Blanca(" : "Cafe(") +
           std::to_string(control.Index) + ")";
}

}  // namespace

std::vector<std::string> Escritorio::Leer() {
    return std::exchange(diario, {});
}

void Escritorio::Contestar(Integer boton, Accion mientras) {
    respuestas.push_back({boton, std::move(mientras)});
}

void Escritorio::Dados(std::initializer_list<int> caras) {
    for (const int cara : caras) azares.push_back((cara - 1) / 5.0);
}

void Escritorio::Azares(std::initializer_list<double> numeros) {
    azares.insert(azares.end(), numeros);
}

void Escritorio::En_El_Pase(int n, Accion accion) {
    acciones.emplace(pases + n, std::move(accion));
}

Integer Escritorio::MsgBox(const std::string& text, Integer style, const std::string& title) {
    diario.push_back("caja " + std::to_string(style) + " [" + title + "] " + text);
    if (respuestas.empty()) {
        if (!contesta_siempre) ADD_FAILURE() << "nobody expected the box: " << text;
        return button::Ok;
    }
    const Respuesta respuesta = std::move(respuestas.front());
    respuestas.pop_front();
    if (respuesta.mientras) respuesta.mientras();
    return respuesta.boton;
}

void Escritorio::DoEvents() {
    ++pases;
    Correr_Acciones();
}

void Escritorio::DoEventsPaced() {
    ++pases;
    ++pases_de_pausa;
    Correr_Acciones();
}

void Escritorio::Correr_Acciones() {
    const auto [desde, hasta] = acciones.equal_range(pases);
    std::vector<Accion> ahora;
    for (auto accion = desde; accion != hasta; ++accion) ahora.push_back(accion->second);
    acciones.erase(desde, hasta);
    for (const Accion& accion : ahora) accion();
}

void Escritorio::SetShape(PointerShape shape) {
    reloj_de_arena = shape == PointerShape::Hourglass;
    diario.emplace_back(reloj_de_arena ? "puntero reloj" : "puntero normal");
}

double Escritorio::Rnd() {
    if (!azares.empty()) {
        const double numero = azares.front();
        azares.pop_front();
        return numero;
    }
    if (!generador) {
        ADD_FAILURE() << "nobody queued a random number";
        return 0;
    }
    return generador->Rnd();
}

void Escritorio::Randomize() {
    diario.emplace_back("siembra");
}

void Escritorio::sndPlaySound(const std::string& path) {
    diario.push_back("sonido " + path);
}

void Escritorio::Beep() {
    diario.emplace_back("bip");
}

std::string Escritorio::GetSetting(const std::string& application, const std::string& section,
                                   const std::string& key, const std::string& otherwise) {
    const auto hallado = almacen.find({application, section, key});
    return hallado == almacen.end() ? otherwise : hallado->second;
}

void Escritorio::SaveSetting(const std::string& application, const std::string& section,
                             const std::string& key, const std::string& value) {
    diario.push_back("guarda " + key + "=" + value);
    almacen[{application, section, key}] = value;
}

std::string Escritorio::Commit() {
    diario.emplace_back("guarda todo");
    return fallo_al_guardar;
}

void Escritorio::WinHelp(const std::string& file, Integer command, Integer context) {
    diario.push_back("ayuda " + file + " " + std::to_string(command) + " " +
                     std::to_string(context));
}

void Escritorio::Refrescar(Control control, const Image& /*antes*/) {
    refrescados.push_back(control);
}

void Escritorio::Iniciar_Arrastre(Control ficha) {
    arrastrada = ficha;
    diario.push_back("arrastra " + Nombre(ficha));
}

void Escritorio::Cancelar_Arrastre() {
    arrastrada = {};
}

}  // namespace corvanda::pruebas
