#include "toolkit/core/TextOutputStream.h"

#include "toolkit/core/Exceptions.h"
#include "toolkit/core/FileWriting.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace {

void CheckWritable(int descriptor)
{
    struct stat status = {};
    Check(fstat(descriptor, &status) == 0);
    if (!S_ISREG(status.st_mode)) throw SystemError(EINVAL);
    if ((status.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0) throw SystemError(EACCES);
}

/// Asks for the room that the new content needs, while the old content is still there.
void Reserve([[maybe_unused]] int descriptor, [[maybe_unused]] Int64 size)
{
#ifdef __linux__
    // A file system that can't tell answers with another error, which says nothing about the room.
    if (size > 0 && fallocate(descriptor, FALLOC_FL_KEEP_SIZE, 0, size) != 0 && errno == ENOSPC)
        throw SystemError(ENOSPC);
#endif
}

} // namespace

TextOutputStream TextOutputStream::Create(const FolderItem& file, Int64 size)
{
    // Without O_NONBLOCK a pipe that nobody reads would block the program.
    const int descriptor = open(file.Path().c_str(), O_WRONLY | O_CREAT | O_NONBLOCK | O_CLOEXEC, 0666);
    Check(descriptor >= 0);
    TextOutputStream stream(descriptor);
    CheckWritable(descriptor);
    Reserve(descriptor, size);
    Check(ftruncate(descriptor, 0) == 0);
    return stream;
}

TextOutputStream::~TextOutputStream()
{
    if (descriptor_ >= 0) close(descriptor_);
}

void TextOutputStream::Write(const Bytes& data) { WriteAll(descriptor_, data); }

void TextOutputStream::Close()
{
    Check(fsync(descriptor_) == 0);
    Check(close(std::exchange(descriptor_, -1)) == 0);
}
