// The pointer of the whole screen: the hourglass over everything or each window's own pointer.
//
// Owns the program's one override cursor; nobody else may push one, because the toolkit keeps them
// on a stack and a pair that overlaps with another would take away the wrong one. Used by the game
// and by everything modal, which puts the hourglass away for as long as it waits for the person.
// GUI thread only.
#pragma once

#include "runtime/ports.h"

namespace corvanda {

class QtMousePointer final : public MousePointer {
  public:
    QtMousePointer() = default;
    ~QtMousePointer() override;
    QtMousePointer(const QtMousePointer&) = delete;
    QtMousePointer& operator=(const QtMousePointer&) = delete;

    /// Setting the shape that is already set does nothing. While a Rest lives, the shape is only
    /// noted and shown when the last Rest ends.
    void SetShape(PointerShape shape) override;

    /// Keeps the hourglass away for as long as it lives; message boxes and dialogs hold one. Rests
    /// may overlap in any order. The pointer must outlive them.
    class Rest {
      public:
        explicit Rest(QtMousePointer& owner);
        ~Rest();
        Rest(const Rest&) = delete;
        Rest& operator=(const Rest&) = delete;

      private:
        QtMousePointer& pointer;
    };

  private:
    void Show();

    PointerShape wanted = PointerShape::Default;
    int rests = 0;
    bool pushed = false;
};

}  // namespace corvanda
