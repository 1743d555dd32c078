// The person's wish for no animations, as the desktop tells of it.
//
// The toolkit's styles carry such a wish (SH_Widget_Animation_Duration is 0) but hear of it on one
// desktop only; the others answer a question on the session bus. When the answer is "no
// animations", this puts a style over the application's own that says so; whoever animates asks the
// style. The answer is not waited for, where there is no bus none is asked, and a later change
// counts from the next start.
#pragma once

#include <QObject>

namespace corvanda {

class ReducedMotion final : public QObject {
  public:
    /// After the application's first window is shown, so that no start waits for the bus.
    void Ask();
};

}  // namespace corvanda
