// Approved pictures: what the game draws, compared by areas with a picture that somebody has looked
// at. tests/apoyo/parecido.h says what counts as a difference.
//
// A picture that differs leaves itself, the approved one and their difference in the build's folder
// retratos/. It is approved by tools/aprobar.sh, which runs the same tests with CORVANDA_APROBAR.
#pragma once

#include <QImage>
#include <QString>

namespace corvanda::pruebas {

/// Fails the running test, and goes on, unless the picture is as approved. `archivo` is the
/// approved one's place in the sources without ".png"; ratios count for nothing, pixels do.
void Retratar(const QString& archivo, const QImage& imagen);

}  // namespace corvanda::pruebas
