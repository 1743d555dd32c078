// A sorted list of texts: what a hidden list box with its sorting on keeps. The search uses it as
// its table of candidates.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

namespace corvanda {

class Lista_Ordenada {
  public:
    /// Puts a text in its place in ascending order, after those equal to it.
    void Agregar(const std::string& texto) {
        textos.insert(std::upper_bound(textos.begin(), textos.end(), texto), texto);
    }

    bool Vacia() const { return textos.empty(); }

    /// The greatest text, an empty one when there is none.
    std::string Ultimo() const { return textos.empty() ? std::string() : textos.back(); }

    /// All texts in ascending order.
    const std::vector<std::string>& Textos() const { return textos; }

  private:
    std::vector<std::string> textos;
};

}  // namespace corvanda
