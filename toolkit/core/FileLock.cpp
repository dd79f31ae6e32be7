#include "toolkit/core/FileLock.h"

#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>
#include <utility>

namespace {

/// A writer puts a new file in the place of the one that it locked.
bool IsStillThere(int descriptor, const FolderItem& file)
{
    struct stat locked = {}, present = {};
    return fstat(descriptor, &locked) == 0 && stat(file.Path().c_str(), &present) == 0 &&
           locked.st_ino == present.st_ino;
}

} // namespace

FileLock::FileLock(const FolderItem& file)
{
    using Clock = std::chrono::steady_clock;
    constexpr std::chrono::milliseconds patience{500}, turn{5};
    for (const Clock::time_point end = Clock::now() + patience; Clock::now() < end;) {
        descriptor_ = open(file.Path().c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
        if (descriptor_ < 0) return;
        const bool isLocked = flock(descriptor_, LOCK_EX | LOCK_NB) == 0;
        if (isLocked ? IsStillThere(descriptor_, file) : errno != EWOULDBLOCK) return;
        close(std::exchange(descriptor_, -1));
        if (!isLocked) std::this_thread::sleep_for(turn);
    }
}

FileLock::~FileLock()
{
    if (descriptor_ >= 0) close(descriptor_);
}
