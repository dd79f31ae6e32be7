#include "toolkit/core/FileCalls.h"
#include "toolkit/core/FolderItem.h"
#include "toolkit/core/TextInputStream.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

void FolderItem::CopyTo(const FolderItem& copy) const
{
    const Bytes content = TextInputStream::Open(*this).ReadAll();
    struct stat status = {};
    Check(::stat(path_.c_str(), &status) == 0);
    Descriptor to(::open(copy.path_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, status.st_mode & ACCESSPERMS));
    Check(to.number >= 0);
    try {
        CopyPermissions(path_.c_str(), to.number);
        WriteAll(to.number, content);
        Check(::fsync(to.number) == 0);
        Check(::close(std::exchange(to.number, -1)) == 0);
    } catch (...) {
        ::unlink(copy.path_.c_str());
        throw;
    }
}
