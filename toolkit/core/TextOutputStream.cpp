#include "toolkit/core/TextOutputStream.h"

#include "toolkit/core/Exceptions.h"
#include "toolkit/core/FileCalls.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <tuple>
#include <unistd.h>
#include <utility>

TextOutputStream::TextOutputStream(const FolderItem& file)
    : target_(file.Original().Path())
    , temporary_(target_.parent_path() / ("Tarnivel " + std::to_string(getpid()) + ".tmp"))
{
    struct stat old = {};
    const bool isThere = stat(target_.c_str(), &old) == 0;
    if (isThere && !S_ISREG(old.st_mode)) throw SystemError(EINVAL);
    if (isThere && (old.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0) throw SystemError(EACCES);
    if (isThere) Check(access(target_.c_str(), W_OK) == 0);

    unlink(temporary_.c_str()); // what was left when a program of that number died
    constexpr mode_t usual = 0666;
    descriptor_ = open(temporary_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, usual);
    Check(descriptor_ >= 0);
    if (!isThere) return;
    // Others' files can't be given back to them by everybody.
    if (fchown(descriptor_, old.st_uid, old.st_gid) != 0) std::ignore = fchown(descriptor_, getuid(), old.st_gid);
    try {
        CopyPermissions(target_.c_str(), descriptor_);
    } catch (...) {
        Discard();
        throw;
    }
}

TextOutputStream::~TextOutputStream()
{
    if (descriptor_ >= 0) Discard();
}

void TextOutputStream::Discard()
{
    close(descriptor_);
    unlink(temporary_.c_str());
}

void TextOutputStream::Write(const Bytes& data) { WriteAll(descriptor_, data); }

void TextOutputStream::Close()
{
    Check(fsync(descriptor_) == 0);
    Check(rename(temporary_.c_str(), target_.c_str()) == 0);
    close(std::exchange(descriptor_, -1));
}
