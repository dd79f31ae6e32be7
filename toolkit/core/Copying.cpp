#include "toolkit/core/Exceptions.h"
#include "toolkit/core/FileWriting.h"
#include "toolkit/core/FolderItem.h"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace {

struct Descriptor {
    int number;
    ~Descriptor()
    {
        if (number >= 0) ::close(number);
    }
};

void CopyContent(int from, int to)
{
    std::array<char, 1 << 16> block{};
    for (;;) {
        const ssize_t count = ::read(from, block.data(), block.size());
        if (count < 0 && errno == EINTR) continue;
        Check(count >= 0);
        if (count == 0) break;
        WriteAll(to, {block.data(), static_cast<std::size_t>(count)});
    }
    Check(::fsync(to) == 0);
}

} // namespace

void FolderItem::CopyTo(const FolderItem& copy) const
{
    const Descriptor from{::open(path_.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC)};
    Check(from.number >= 0);
    struct stat status = {};
    Check(::fstat(from.number, &status) == 0);
    if (!S_ISREG(status.st_mode)) throw SystemError(EINVAL);

    Descriptor to{::open(copy.path_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC,
                         status.st_mode & (S_IRWXU | S_IRWXG | S_IRWXO))};
    Check(to.number >= 0);
    try {
        CopyContent(from.number, to.number);
        Check(::close(std::exchange(to.number, -1)) == 0);
    } catch (...) {
        ::unlink(copy.path_.c_str());
        throw;
    }
}
