// The hourglass for as long as a procedure runs, whichever way it returns.
#pragma once

#include "runtime/ports.h"

namespace corvanda {

class Hourglass {
  public:
    /// The pointer must outlive it.
    explicit Hourglass(MousePointer& pointer) : pointer(pointer) {
        pointer.SetShape(PointerShape::Hourglass);
    }
    ~Hourglass() { pointer.SetShape(PointerShape::Default); }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;

  private:
    MousePointer& pointer;
};

}  // namespace corvanda
