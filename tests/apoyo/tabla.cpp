#include "tests/apoyo/tabla.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "fuentes.h"

namespace corvanda::pruebas {

std::vector<std::vector<std::string>> Tabla(const std::string& archivo, std::size_t campos) {
    std::vector<std::vector<std::string>> tabla;
    std::ifstream texto(CORVANDA_FUENTES "/tests/" + archivo);
    for (std::string linea; std::getline(texto, linea);) {
        if (linea.empty() || linea[0] == '#') continue;
        std::istringstream partes(linea);
        std::vector<std::string> fila;
        for (std::string campo; std::getline(partes, campo, ';');) {
            campo.erase(0, std::min(campo.find_first_not_of(' '), campo.size()));
            campo.erase(campo.find_last_not_of(' ') + 1);
            fila.push_back(campo);
        }
        EXPECT_LE(fila.size(), campos) << archivo << ": " << linea;
        fila.resize(campos);
        tabla.push_back(fila);
    }
    EXPECT_FALSE(tabla.empty()) << archivo;
    return tabla;
}

}  // namespace corvanda::pruebas
