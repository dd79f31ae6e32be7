#include "toolkit/core/FileCalls.h"

#include "toolkit/core/Exceptions.h"

#include <array>
#include <cerrno>
#include <sys/stat.h>
#ifdef __linux__
#include <sys/xattr.h>
#endif
#include <unistd.h>

void Check(bool done)
{
    if (!done) throw SystemError(errno);
}

void WriteAll(int descriptor, std::string_view data)
{
    while (!data.empty()) {
        const ssize_t count = ::write(descriptor, data.data(), data.size());
        if (count < 0 && errno == EINTR) continue;
        Check(count >= 0);
        data.remove_prefix(static_cast<std::size_t>(count));
    }
}

void CopyPermissions(const char* from, int to)
{
    struct stat status = {};
    Check(::stat(from, &status) == 0);
    Check(::fchmod(to, status.st_mode & ACCESSPERMS) == 0); // the process's mask takes none away
#ifdef __linux__
    constexpr const char* list = "system.posix_acl_access";
    std::array<char, 4096> rights;
    const ssize_t size = ::getxattr(from, list, rights.data(), rights.size());
    // Without its list the group would have what is the most that the list gives to anybody.
    if (size > 0 && ::fsetxattr(to, list, rights.data(), static_cast<std::size_t>(size), 0) != 0)
        Check(::fchmod(to, status.st_mode & ACCESSPERMS & ~mode_t{S_IRWXG}) == 0);
#endif
}

Descriptor::~Descriptor()
{
    if (number >= 0) ::close(number);
}
