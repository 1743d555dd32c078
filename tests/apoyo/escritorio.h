// A desktop that only writes a journal: every port of the game in one object. What the game says
// (boxes, sounds, pointer, drags) is read from the journal; what it asks for (dice, answers) must
// have been queued, and a question that nobody prepared for fails the test.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "core/juego.h"
#include "runtime/random.h"

namespace corvanda::pruebas {

class Escritorio final : public MessageBoxes,
                         public EventLoop,
                         public MousePointer,
                         public RandomNumbers,
                         public WaveOut,
                         public SettingsStore,
                         public HelpViewer,
                         public App,
                         public Pantalla {
  public:
    using Accion = std::function<void()>;

    /// The journal, one line each; see the port members below for the forms.
    std::vector<std::string> diario;

    /// The journal since the last call.
    std::vector<std::string> Leer() { return std::exchange(diario, {}); }

    /// The next box is answered with this button; `mientras` runs while it is open.
    void Contestar(Integer boton = button::Ok, Accion mientras = {}) {
        respuestas.emplace_back(boton, std::move(mientras));
    }
    /// Every box is answered with Ok.
    void Contestar_Siempre() { contesta_siempre = true; }
    bool Respuestas_Gastadas() const { return respuestas.empty(); }

    /// The next throws of dice give these faces.
    void Dados(std::initializer_list<int> caras) {
        for (const int cara : caras) azares.push_back((cara - 1) / 5.0);
    }
    /// The next random numbers themselves.
    void Azares(std::initializer_list<double> r) { azares.insert(azares.end(), r); }
    /// All further random numbers come from a seeded generator.
    void Sembrar(std::uint32_t semilla) { generador.emplace(semilla); }

    /// Runs an action in the n-th pass of the event loop from now (1 is the next).
    void En_El_Pase(int n, Accion accion) { acciones.emplace(pases + n, std::move(accion)); }
    int Pases() const { return pases; }
    int Pases_De_Pausa() const { return pases_de_pausa; }

    /// What stands in the settings store, by application, section and key.
    std::map<std::tuple<std::string, std::string, std::string>, std::string> almacen;
    int dormido = 0;                   ///< milliseconds, in all
    std::string fallo_al_guardar;      ///< what Commit answers
    unsigned dispositivos = 1;         ///< what waveOutGetNumDevs answers
    std::vector<Control> refrescados;  ///< the images of which the board was told

    Integer MsgBox(const std::string& text, Integer style, const std::string& title) override;
    void DoEvents() override;
    void DoEventsPaced() override {
        ++pases_de_pausa;
        DoEvents();
    }
    void Sleep(int milliseconds) override { dormido += milliseconds; }
    void SetShape(PointerShape shape) override {
        reloj_de_arena = shape == PointerShape::Hourglass;
        diario.emplace_back(reloj_de_arena ? "puntero reloj" : "puntero normal");
    }
    double Rnd() override;
    void Randomize() override { diario.emplace_back("siembra"); }
    void sndPlaySound(const std::string& path) override { diario.push_back("sonido " + path); }
    unsigned waveOutGetNumDevs() override {
        diario.emplace_back("cuenta dispositivos");
        return dispositivos;
    }
    void Beep() override { diario.emplace_back("bip"); }
    std::string GetSetting(const std::string& application, const std::string& section,
                           const std::string& key, const std::string& otherwise) override {
        diario.push_back("lee " + key);
        const auto hallado = almacen.find({application, section, key});
        return hallado == almacen.end() ? otherwise : hallado->second;
    }
    void SaveSetting(const std::string& application, const std::string& section,
                     const std::string& key, const std::string& value) override {
        diario.push_back("guarda " + key + "=" + value);
        almacen[{application, section, key}] = value;
    }
    std::string Commit() override {
        diario.emplace_back("guarda todo");
        return fallo_al_guardar;
    }
    void WinHelp(const std::string& file, Integer command, Integer context) override;
    std::string Path() const override { return "/opt/juegos de mesa/corvanda"; }
    std::string EXEName() const override { return "corvanda"; }
    void Refrescar(Control control, const Image& /*antes*/) override {
        refrescados.push_back(control);
    }
    void Iniciar_Arrastre(Control ficha) override;
    void Rechazar(Control ficha) override { rechazada = ficha; }
    void Cancelar_Arrastre() override { arrastrada = {}; }

    Puertos Todos() { return {*this, *this, *this, *this, *this, *this, *this}; }

    bool reloj_de_arena = false;  ///< the pointer's shape now
    Control rechazada;            ///< the chip whose press was last refused by a sound alone
    Control arrastrada;           ///< the chip being dragged, Ninguno for none

  private:
    std::deque<std::pair<Integer, Accion>> respuestas;
    bool contesta_siempre = false;
    std::deque<double> azares;
    std::optional<Random> generador;
    std::multimap<int, Accion> acciones;
    int pases = 0;
    int pases_de_pausa = 0;
};

}  // namespace corvanda::pruebas
