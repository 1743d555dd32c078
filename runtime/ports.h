// What the game asks of a desktop, one abstract class for each kind of question. The forms are the
// platform's own (message-box style numbers, file paths with backslashes, command numbers), so that
// what the game says can be read literally by whoever stands behind a port.
//
// All texts are UTF-8. Unless a port says otherwise, its calls do not let other events run.
#pragma once

#include <string>
#include <string_view>

#include "runtime/types.h"

namespace corvanda {

/// Style numbers of message boxes; a question adds Yes and No to its icon.
namespace style {
inline constexpr Integer Critical = 16;
inline constexpr Integer Exclamation = 48;
inline constexpr Integer Information = 64;
inline constexpr Integer QuestionYesNo = 36;
}  // namespace style

/// Buttons as a message box reports them.
namespace button {
inline constexpr Integer Ok = 1;
inline constexpr Integer Yes = 6;
inline constexpr Integer No = 7;
}  // namespace button

/// The left button as a mouse event reports it.
inline constexpr Integer LeftButton = 1;

class MessageBoxes {
  public:
    virtual ~MessageBoxes() = default;
    /// Shows a modal box and waits until it is closed; any other event handler may run meanwhile.
    /// Returns the button pressed. A box that is closed in another way counts as Ok or No.
    virtual Integer MsgBox(const std::string& text, Integer style, const std::string& title) = 0;
};

class EventLoop {
  public:
    virtual ~EventLoop() = default;
    /// One pass: every pending event is handled, then the call returns without waiting.
    virtual void DoEvents() = 0;
    /// One pass that handles whatever arrives for about 3.3 milliseconds, using no processor time
    /// while nothing does. Three of these are one cycle of the computer's pause.
    virtual void DoEventsPaced() = 0;
    /// Waits, and nothing that people do is handled. What was drawn before is seen meanwhile.
    virtual void Sleep(int milliseconds) = 0;
};

enum class PointerShape : Byte { Default, Hourglass };

class MousePointer {
  public:
    virtual ~MousePointer() = default;
    /// Sets the pointer of the whole screen.
    virtual void SetShape(PointerShape shape) = 0;
};

class RandomNumbers {
  public:
    virtual ~RandomNumbers() = default;
    /// The next number r, uniform, 0 <= r < 1.
    virtual double Rnd() = 0;
    /// Seeds from the time of day.
    virtual void Randomize() = 0;
};

class WaveOut {
  public:
    virtual ~WaveOut() = default;
    /// Starts a wave file and returns at once; a sound still playing ends. The path is the
    /// program's folder followed by a relative name with backslashes. A file that cannot be
    /// played is replaced by the system beep.
    virtual void sndPlaySound(const std::string& path) = 0;
    /// How many devices can play wave files; 0 means that no sound can be heard.
    virtual unsigned waveOutGetNumDevs() = 0;
    /// A beep that comes from no file.
    virtual void Beep() = 0;
};

class SettingsStore {
  public:
    virtual ~SettingsStore() = default;
    /// The stored text, or the default where there is none or the store cannot be read.
    virtual std::string GetSetting(const std::string& application, const std::string& section,
                                   const std::string& key, const std::string& otherwise) = 0;
    /// Notes a text to be stored; Commit writes it.
    virtual void SaveSetting(const std::string& application, const std::string& section,
                             const std::string& key, const std::string& value) = 0;
    /// Writes everything noted, whole or not at all. Returns an empty text, or why it failed in
    /// words for the person.
    virtual std::string Commit() = 0;
};

class MediaControl {
  public:
    virtual ~MediaControl() = default;
    /// Carries out one text command of the platform's media control, for instance
    /// `Status "C:\Film.avi" Mode`. Returns 0 with the answer in `reply`, empty where there is
    /// none; or an error code, and then the reply is empty. Window handles are numbers whose
    /// meaning the forms and the player share: the address of the widget.
    virtual long mciSendString(const std::string& command, std::string& reply) = 0;
};

/// Command numbers of the help viewer.
namespace help {
inline constexpr Integer Context = 1;
inline constexpr Integer Contents = 3;
inline constexpr Integer Key = 257;
}  // namespace help

class HelpViewer {
  public:
    virtual ~HelpViewer() = default;
    /// Opens the help file (a path with backslashes) with one of the commands above; `context` is
    /// the number of the topic and counts for help::Context only. A missing file is reported by
    /// the viewer.
    virtual void WinHelp(const std::string& file, Integer command, Integer context) = 0;
};

class App {
  public:
    virtual ~App() = default;
    /// The folder that holds the executable, without a separator at its end.
    virtual std::string Path() const = 0;
    /// The executable's file name without extension.
    virtual std::string EXEName() const = 0;
};

}  // namespace corvanda
