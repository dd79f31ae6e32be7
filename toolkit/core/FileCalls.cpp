#include "toolkit/core/FileCalls.h"

#include "toolkit/core/Exceptions.h"

#include <cerrno>
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

Descriptor::~Descriptor()
{
    if (number >= 0) ::close(number);
}
