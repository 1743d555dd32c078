// The board as screen readers meet it: one object with a child for each place (in the order of LST:
// the points, Brown's and White's bar, White's and Brown's tray) and one for each die. Names,
// states and areas are asked of the board whenever somebody wants to know, so they are always true;
// only that they changed is told, by Locutor. To press a place is to pick up or to drop a chip
// there.
//
// Nothing of it exists until somebody asks.
#pragma once

#include <QAccessibleWidget>
#include <array>

#include "ui/lugares.h"

namespace corvanda {

class Estuche;

class EstucheAccesible final : public QAccessibleWidget {
  public:
    static constexpr int HIJOS = lugares::CUANTOS + 2;

    /// Makes the toolkit ask for this class; more than once does no harm.
    static void Instalar();

    explicit EstucheAccesible(Estuche& estuche);
    ~EstucheAccesible() override;
    EstucheAccesible(const EstucheAccesible&) = delete;
    EstucheAccesible& operator=(const EstucheAccesible&) = delete;

    int childCount() const override { return HIJOS; }
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* hijo) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;

  private:
    Estuche& estuche;
    mutable std::array<QAccessible::Id, HIJOS> hijos{};  // 0 where nobody has asked yet
};

}  // namespace corvanda
