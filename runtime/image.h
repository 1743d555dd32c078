// The image control of a forms runtime as plain data: where a picture stands, whether it is shown,
// whether it takes the mouse, and its place in the drawing order. The game keeps part of its state
// in these (a die may be used while its image is shown); a window only draws what they say.
#pragma once

#include <cstdint>

#include "runtime/types.h"

namespace corvanda {

/// What an image shows. The pictures themselves belong to the window.
enum class Picture : Byte {
    None,
    Estuche,
    Tablero,
    Triangulo_Sup_A,
    Triangulo_Sup_B,
    Triangulo_Inf_A,
    Triangulo_Inf_B,
    Blanca,
    Cafe,
    Adios,
    Dado1,
    Dado2,
    Dado3,
    Dado4,
    Dado5,
    Dado6,
};

struct Image {
    Single Left = 0;  ///< twips, from the left edge of the container
    Single Top = 0;   ///< twips, from the top edge of the container
    Single Width = 0;
    Single Height = 0;
    bool Visible = true;
    bool Enabled = true;  ///< a disabled image is neither pressed nor a target of a drop
    Picture Shown = Picture::None;
    std::int32_t ZOrder = 0;  ///< the greater number is drawn later, in front of the others

    /// Whether the point (twips, in the container) lies on the image; right and bottom edges not.
    bool Covers(Single x, Single y) const {
        return x >= Left && x < Left + Width && y >= Top && y < Top + Height;
    }

    bool operator==(const Image&) const = default;
};

}  // namespace corvanda
