#include "toolkit/core/TextInputStream.h"

#include "toolkit/core/Exceptions.h"
#include "toolkit/core/FileCalls.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

TextInputStream::TextInputStream(const FolderItem& file)
{
    // Without O_NONBLOCK a pipe that nobody writes to would hold up the program.
    const Descriptor from(::open(file.Path().c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY));
    Check(from.number >= 0);
    struct stat status = {};
    Check(::fstat(from.number, &status) == 0);
    if (!S_ISREG(status.st_mode)) throw SystemError(S_ISDIR(status.st_mode) ? EISDIR : EINVAL);
    if (status.st_size > MaximumSize) throw SystemError(EFBIG);

    std::array<char, 1 << 16> block{};
    for (ssize_t got = 1; got != 0 && error_ == 0;) {
        got = ::read(from.number, block.data(), block.size());
        if (got > 0) data_.append(block.data(), static_cast<std::size_t>(got));
        if (got < 0 && errno != EINTR) error_ = errno;
        if (std::ssize(data_) > MaximumSize) error_ = EFBIG;
    }
}

TextInputStream TextInputStream::Open(const FolderItem& file) { return TextInputStream(file); }

Bytes TextInputStream::ReadAll()
{
    if (error_ != 0) throw SystemError(error_);
    return data_.substr(std::exchange(position_, data_.size()));
}

Bytes TextInputStream::ReadLine()
{
    if (EndOfFile()) return {};
    const std::size_t start = position_, end = std::min(data_.find_first_of("\r\n", start), data_.size());
    position_ = std::min(end + (data_.compare(end, 2, "\r\n") == 0 ? 2 : 1), data_.size());
    return data_.substr(start, end - start);
}

bool TextInputStream::EndOfFile() const
{
    if (position_ == data_.size() && error_ != 0) throw SystemError(error_);
    return position_ == data_.size();
}
