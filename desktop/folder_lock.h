// Keeps other copies of the program from changing files of a folder at the same time.
//
// The lock is the kernel's, on the folder itself: it needs no file of its own and ends with its
// holder, however that ends. (A lock file that was just made when its maker was killed says of
// nobody whom it belongs to, and would keep everybody out until it is old enough.)
#pragma once

#include <QString>
#include <chrono>

namespace corvanda {

class FolderLock {
  public:
    /// Waits for a holder to let go, at most for `patience`. A folder on a file system that knows
    /// no locks counts as locked by us.
    FolderLock(const QString& folder, std::chrono::milliseconds patience);
    ~FolderLock();
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;

    /// Whether nobody else holds it.
    bool Held() const { return held; }

  private:
    int folder;
    bool held;
};

}  // namespace corvanda
