#include "packs/Unpacking.h"

#include <archive.h>
#include <dlfcn.h>
#include <memory>

namespace {

void* Library()
{
    static void* const library = [] {
        void* found = dlopen("libarchive.so.13", RTLD_NOW | RTLD_LOCAL);
        return found ? found : dlopen("libarchive.dylib", RTLD_NOW | RTLD_LOCAL);
    }();
    return library;
}

template <class Function>
Function* Find(const char* name)
{
    return reinterpret_cast<Function*>(dlsym(Library(), name));
}

} // namespace

bool CanUnpack() { return Library(); }

std::string Unpack(int archiveFile, std::size_t size)
{
    constexpr std::size_t blockSize = 65536;
    if (!CanUnpack()) return {};
    const std::unique_ptr<archive, decltype(archive_read_free)*> reader(
        Find<decltype(archive_read_new)>("archive_read_new")(), Find<decltype(archive_read_free)>("archive_read_free"));
    archive_entry* entry = nullptr;
    Find<decltype(archive_read_support_format_7zip)>("archive_read_support_format_7zip")(reader.get());
    Find<decltype(archive_read_open_fd)>("archive_read_open_fd")(reader.get(), archiveFile, blockSize);
    if (Find<decltype(archive_read_next_header)>("archive_read_next_header")(reader.get(), &entry) != ARCHIVE_OK)
        return {};
    std::string bytes(size, '\0');
    const la_ssize_t count = Find<decltype(archive_read_data)>("archive_read_data")(reader.get(), bytes.data(), size);
    bytes.resize(count > 0 ? static_cast<std::size_t>(count) : 0);
    return bytes;
}
