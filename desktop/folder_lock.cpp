#include "desktop/folder_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <QFile>
#include <cerrno>
#include <thread>

namespace corvanda {

namespace {

constexpr std::chrono::milliseconds between_tries{5};

bool Lock(int folder, std::chrono::steady_clock::time_point end) {
    while (::flock(folder, LOCK_EX | LOCK_NB) != 0) {
        if (errno != EWOULDBLOCK && errno != EINTR) return true;
        if (std::chrono::steady_clock::now() >= end) return false;
        std::this_thread::sleep_for(between_tries);
    }
    return true;
}

}  // namespace

FolderLock::FolderLock(const QString& folder, std::chrono::milliseconds patience)
    : folder(::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)),
      held(this->folder < 0 || Lock(this->folder, std::chrono::steady_clock::now() + patience)) {}

FolderLock::~FolderLock() {
    if (folder >= 0) ::close(folder);
}

}  // namespace corvanda
