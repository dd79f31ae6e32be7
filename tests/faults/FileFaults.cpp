#include "tests/faults/FileFaults.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <dlfcn.h>
#include <fcntl.h>
#include <filesystem>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace {

bool IsBelow(std::string_view path) { return FileFaults::current && path.starts_with(FileFaults::current->folder); }

std::string PathOf(int file)
{
    std::error_code ignored;
    return FileFaults::current
               ? std::filesystem::read_symlink("/proc/self/fd/" + std::to_string(file), ignored).native()
               : "";
}

std::size_t Portion(int file, std::size_t size)
{
    return IsBelow(PathOf(file)) ? std::min<std::size_t>(size, 4096) : size;
}

/// Counts a call that touches the folder; whether it is to fail.
bool Fails(const char* name, std::string_view path)
{
    if (!IsBelow(path)) return false;
    auto& [folder, fault, calls] = *FileFaults::current;
    calls.push_back(std::string(name).append(" ").append(path.substr(folder.size())));
    const auto [call, error, forGood] = fault;
    const int made = static_cast<int>(calls.size());
    if (call == 0 || made < call || (made > call && !forGood)) return false;
    if (error == 0) ::kill(::getpid(), SIGKILL);
    errno = error;
    return true;
}

/// Fails, or calls the function that would have been called if there were none here.
template <class Function, class... Arguments>
auto Call(const char* name, std::string_view path, Arguments... arguments)
{
    auto* const next = reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
    return Fails(name, path) ? -1 : next(arguments...);
}

} // namespace

extern "C" {

int open(const char* path, int flags, ...)
{
    std::va_list more;
    va_start(more, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(more, mode_t) : 0;
    va_end(more);
    return Call<decltype(open)>("open", path, path, flags, mode);
}
/// Serves the listing of folders, which makes none.
int openat(int folder, const char* path, int flags, ...)
{
    return Call<decltype(openat)>("openat", path, folder, path, flags);
}
ssize_t read(int file, void* data, size_t size)
{
    return Call<decltype(read)>("read", PathOf(file), file, data, Portion(file, size));
}
ssize_t write(int file, const void* data, size_t size)
{
    return Call<decltype(write)>("write", PathOf(file), file, data, Portion(file, size));
}
int fsync(int file) { return Call<decltype(fsync)>("fsync", PathOf(file), file); }
int fchmod(int file, mode_t mode) noexcept { return Call<decltype(fchmod)>("fchmod", PathOf(file), file, mode); }
int close(int file)
{
    const bool reads = (::fcntl(file, F_GETFL) & O_ACCMODE) == O_RDONLY;
    // A file is closed even when that fails.
    const bool fails = Fails(reads ? "close reading" : "close", PathOf(file));
    const int error = errno, result = Call<decltype(close)>("close", "", file);
    if (fails) errno = error;
    return fails ? -1 : result;
}
int rename(const char* from, const char* to) noexcept { return Call<decltype(rename)>("rename", from, from, to); }
int link(const char* from, const char* to) noexcept { return Call<decltype(link)>("link", from, from, to); }
int mkdir(const char* path, mode_t mode) noexcept { return Call<decltype(mkdir)>("mkdir", path, path, mode); }
int unlink(const char* path) noexcept { return Call<decltype(unlink)>("unlink", path, path); }
int remove(const char* path) noexcept { return Call<decltype(remove)>("remove", path, path); }
}
