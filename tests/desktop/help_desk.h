// What the help tests share: where the built help file is, and message boxes that only remember.
#pragma once

#include <QApplication>
#include <QString>
#include <string>
#include <vector>

#include "desktop/help_window.h"
#include "runtime/ports.h"

namespace corvanda {

inline const QString built_help = QStringLiteral(CORVANDA_AYUDA);

class RememberedBoxes final : public MessageBoxes {
  public:
    Integer MsgBox(const std::string& text, Integer style, const std::string& title) override {
        said.push_back(title + " | " + std::to_string(style) + " | " + text);
        return button::Ok;
    }
    std::vector<std::string> said;
};

/// The help windows that exist, shown or not.
inline std::vector<HelpWindow*> HelpWindows() {
    std::vector<HelpWindow*> found;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (auto* help = qobject_cast<HelpWindow*>(window)) found.push_back(help);
    }
    return found;
}

}  // namespace corvanda
