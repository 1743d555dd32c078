// Where the program lies and what it is called, and how the game's file paths become paths of the
// file system.
//
// Built once by the application after its QApplication; read by everything that addresses files
// beside the executable.
#pragma once

#include <QString>

#include "runtime/ports.h"

namespace corvanda {

class ProgramFolder final : public App {
  public:
    /// Takes both answers from the running executable at once: a program that is replaced while it
    /// runs keeps them. A folder whose name is no UTF-8 becomes the working folder of the program
    /// and is called "/proc/self/cwd".
    ProgramFolder();
    /// Answers with the folder and name of the given executable, for tests.
    explicit ProgramFolder(const QString& executable);

    std::string Path() const override { return path; }
    std::string EXEName() const override { return name; }

  private:
    std::string path;
    std::string name;
};

/// The file system's form of `folder` + "\a\b": the part behind the folder gets slashes, the folder
/// itself stays as it is, because a backslash in it is part of a name. A path that does not begin
/// with the folder gets slashes everywhere.
QString NativePath(const std::string& folder, const std::string& path);

}  // namespace corvanda
