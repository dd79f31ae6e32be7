#include "toolkit/core/TextOutputStream.h"

#include "toolkit/core/Exceptions.h"
#include "toolkit/core/FileCalls.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <tuple>
#include <unistd.h>
#include <utility>

namespace {

void CheckWritable(int descriptor, Int64 size)
{
    struct stat status = {};
    Check(fstat(descriptor, &status) == 0);
    if (!S_ISREG(status.st_mode)) throw SystemError(EINVAL);
    if ((status.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0) throw SystemError(EACCES);
    struct rlimit limit = {};
    Check(getrlimit(RLIMIT_FSIZE, &limit) == 0);
    // The old content is written over to its end.
    if (static_cast<rlim_t>(std::max<Int64>(size, status.st_size)) > limit.rlim_cur) throw SystemError(EFBIG);
}

/// Asks for the room that the new content needs, while the old content is still there.
void Reserve([[maybe_unused]] int descriptor, [[maybe_unused]] Int64 size)
{
#ifdef __linux__
    if (size <= 0 || fallocate(descriptor, FALLOC_FL_KEEP_SIZE, 0, size) == 0) return;
    // A file system that can't tell answers with another error, which says nothing about the room.
    if (errno == ENOSPC || errno == EDQUOT || errno == EFBIG) throw SystemError(errno);
#endif
}

/// The end of what was written.
off_t Position(int descriptor) { return lseek(descriptor, 0, SEEK_CUR); }

} // namespace

TextOutputStream TextOutputStream::Create(const FolderItem& file, Int64 size)
{
    // Without O_NONBLOCK a pipe that nobody reads would block the program.
    const int descriptor = open(file.Path().c_str(), O_WRONLY | O_CREAT | O_NONBLOCK | O_CLOEXEC, 0666);
    Check(descriptor >= 0);
    TextOutputStream stream(descriptor);
    CheckWritable(descriptor, size);
    Reserve(descriptor, size);
    return stream;
}

TextOutputStream::~TextOutputStream()
{
    if (descriptor_ < 0) return;
    // A write failed: what came is kept alone, and where nothing came the old content stays.
    if (const off_t end = Position(descriptor_); end > 0) std::ignore = ftruncate(descriptor_, end);
    close(descriptor_);
}

void TextOutputStream::Write(const Bytes& data)
{
    // The old content is whole until one call replaces all of it. What is left of a longer one is covered by blank
    // lines, and cut off by Close: no moment is without the old or the new text.
    struct stat status = {};
    Check(fstat(descriptor_, &status) == 0);
    const off_t end = Position(descriptor_) + std::ssize(data);
    // No text is longer by more than this; a file of another kind may be.
    constexpr off_t mostBlank = 1 << 24;
    Bytes covering = data;
    covering.append(static_cast<std::size_t>(std::clamp<off_t>(status.st_size - end, 0, mostBlank)), '\n');
    WriteAll(descriptor_, covering);
    Check(lseek(descriptor_, end, SEEK_SET) == end);
}

void TextOutputStream::Close()
{
    Check(ftruncate(descriptor_, Position(descriptor_)) == 0);
    Check(fsync(descriptor_) == 0);
    Check(close(std::exchange(descriptor_, -1)) == 0);
}
