#include "toolkit/core/Exceptions.h"
#include "toolkit/core/FolderItem.h"
#include "toolkit/core/TextEncoding.h"

#include <cerrno>
#include <system_error>

namespace fs = std::filesystem;

namespace {

/// Makes a second item of the same content at `to`; fails where something is there already.
std::error_code Duplicate(const fs::path& from, const fs::path& to)
{
    std::error_code error;
    const fs::file_type kind = fs::symlink_status(from, error).type();
    if (kind == fs::file_type::symlink) {
        const fs::path destination = fs::read_symlink(from, error);
        if (!error) fs::create_symlink(destination, to, error);
        return error;
    }
    fs::create_hard_link(from, to, error);
    if (!error || error == std::errc::file_exists || kind != fs::file_type::regular) return error;

    // Another file system, or one without hard links.
    fs::copy_file(from, to, fs::copy_options::none, error);
    std::error_code ignored;
    if (error && error != std::errc::file_exists) fs::remove(to, ignored);
    return error;
}

/// Moves what is no folder. The first name goes last, so that no moment is without the file.
std::error_code MoveFile(const fs::path& from, const fs::path& to)
{
    std::error_code error = Duplicate(from, to);
    if (error) return error;
    fs::remove(from, error);
    std::error_code ignored;
    if (error) fs::remove(to, ignored);
    return error;
}

std::error_code MoveFolder(const fs::path& from, const fs::path& to)
{
    std::error_code error;
    if (fs::exists(fs::symlink_status(to, error))) return std::make_error_code(std::errc::file_exists);
    // A folder that appears at this moment is replaced only if it is empty.
    fs::rename(from, to, error);
    return error;
}

void Move(const fs::path& from, const fs::path& to)
{
    std::error_code error;
    const bool isFolder = fs::is_directory(fs::symlink_status(from, error));
    error = isFolder ? MoveFolder(from, to) : MoveFile(from, to);
    if (error) throw SystemError(error.value());
}

} // namespace

void FolderItem::MoveTo(const FolderItem& folder) const
{
    std::error_code ignored;
    const bool isFolder = fs::is_directory(folder.path_, ignored);
    Move(path_, isFolder ? folder.path_ / path_.filename() : folder.path_);
}

void FolderItem::Rename(StringView newName) const
{
    if (!IsPossibleName(newName)) throw SystemError(EINVAL);
    Move(path_, path_.parent_path() / Encodings::UTF8.Encode(newName));
}
