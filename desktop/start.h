// What the program settles with the desktop before its first window: a screen to show it on.
#pragma once

namespace corvanda {

/// While one of these lives, what the toolkit has to say about its own start is left out, and where
/// it finds no screen the program ends with status 1 and one line on the terminal, instead of the
/// toolkit's several and a crash. Made before the QApplication.
class StartWatch {
  public:
    StartWatch();
    ~StartWatch();
    StartWatch(const StartWatch&) = delete;
    StartWatch& operator=(const StartWatch&) = delete;

    /// Ends the program in that way where the QApplication came up without any screen.
    void CheckScreen() const;
};

}  // namespace corvanda
