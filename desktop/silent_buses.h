// Message buses that accept connections and never answer.
//
// The toolkit waits for the session's bus and for the screen readers' before it shows a window,
// half a minute for each question. So the program asks both beforehand, for a moment, and does
// without those that are silent.
#pragma once

namespace corvanda {

/// To be called before the QApplication is made. Takes a silent bus out of the environment; then
/// the desktop's wish for no animations, or screen readers, are not heard of. Waits for less than a
/// second.
void LeaveOutSilentBuses();

}  // namespace corvanda
