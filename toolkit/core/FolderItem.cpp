#include "toolkit/core/FolderItem.h"

#include "toolkit/core/Exceptions.h"
#include "toolkit/core/FileCalls.h"
#include "toolkit/core/QtText.h"
#include "toolkit/core/TextEncoding.h"

#include <QByteArray>
#include <QOperatingSystemVersion>
#include <QStorageInfo>
#include <algorithm>
#include <cerrno>
#include <set>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace fs = std::filesystem;

namespace {

constexpr int mostLinks = 40;

String RootName()
{
    const bool isMac = QOperatingSystemVersion::currentType() == QOperatingSystemVersion::MacOS;
    return isMac ? FromQt(QStorageInfo::root().displayName()) : U"Linux";
}

fs::file_type KindOf(const fs::path& path)
{
    std::error_code ignored;
    return fs::symlink_status(path, ignored).type();
}

bool IsThere(const fs::path& path)
{
    const fs::file_type kind = KindOf(path);
    return kind != fs::file_type::none && kind != fs::file_type::not_found;
}

/// The paths of a folder's items in the order of the disk; empty when they can't be read to the end.
std::vector<fs::path> Entries(const fs::path& folder)
{
    std::error_code error;
    std::vector<fs::path> entries;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
        entries.push_back(entry->path());
    }
    if (error) entries.clear();
    return entries;
}

/// The item of that folder whose name is the same text in another form: composed letters for decomposed ones.
std::optional<fs::path> EquivalentEntry(const fs::path& folder, StringView name)
{
    const String wanted = CanonicalForm(name);
    for (fs::path& entry : Entries(folder)) {
        const std::string bytes = entry.filename().native();
        // Different names that are no UTF-8 would show as the same text.
        if (!Encodings::UTF8.IsValidData(bytes)) continue;
        if (CanonicalForm(Encodings::UTF8.Decode(bytes)) == wanted) return std::move(entry);
    }
    return std::nullopt;
}

fs::path Destination(const fs::path& path)
{
    fs::path destination = path;
    for (int links = 0; links < mostLinks; ++links) {
        std::error_code error;
        const fs::path target = fs::read_symlink(destination, error);
        if (error) return destination;
        destination = fs::weakly_canonical(destination.parent_path() / target, error);
        if (error) break;
    }
    return path;
}

void Move(const fs::path& from, const fs::path& to)
{
    if (IsThere(to)) throw SystemError(EEXIST);
    std::error_code error;
    fs::rename(from, to, error);
    if (error) throw SystemError(error.value());
}

} // namespace

FolderItem::FolderItem(fs::path absolutePath)
    : path_(std::move(absolutePath))
{
    if (path_.has_relative_path() && !path_.has_filename()) path_ = path_.parent_path();
}

String FolderItem::Name() const
{
    return path_ == path_.root_path() && !path_.empty() ? RootName()
                                                        : Encodings::UTF8.Decode(path_.filename().native());
}

std::optional<FolderItem> FolderItem::Child(StringView name, bool followAlias) const
{
    if (!IsPossibleName(name)) return std::nullopt;
    fs::path child = path_ / Encodings::UTF8.Encode(name);
    if (!IsThere(child)) child = EquivalentEntry(path_, name).value_or(child);
    return FolderItem(followAlias ? Destination(child) : child);
}

std::vector<FolderItem> FolderItem::Children() const
{
    std::set<std::pair<String, fs::path>> named;
    for (fs::path& entry : Entries(path_)) {
        String key = FoldCase(Encodings::UTF8.Decode(entry.filename().native()));
        named.emplace(std::move(key), std::move(entry));
    }
    std::vector<FolderItem> children;
    children.reserve(named.size());
    for (const auto& [key, path] : named)
        children.emplace_back(path);
    return children;
}

std::optional<FolderItem> FolderItem::Parent() const
{
    if (!path_.has_relative_path()) return std::nullopt;
    return FolderItem(path_.parent_path());
}

FolderItem FolderItem::Original() const { return FolderItem(Destination(path_)); }

bool FolderItem::IsPossibleName(StringView name)
{
    return !name.empty() && name != U"." && name != U".." && name.find_first_of(StringView(U"/\0", 2)) == name.npos;
}

bool FolderItem::Exists() const { return IsThere(path_); }

bool FolderItem::IsFolder() const { return KindOf(path_) == fs::file_type::directory; }

bool FolderItem::LeadsToFolder() const
{
    std::error_code ignored;
    return fs::is_directory(path_, ignored);
}

bool FolderItem::IsAlias() const { return KindOf(path_) == fs::file_type::symlink; }

bool FolderItem::IsReadable() const { return ::access(path_.c_str(), R_OK) == 0; }

bool FolderItem::Visible() const { return !path_.filename().native().starts_with('.'); }

String FolderItem::URLPath() const
{
    const std::string& bytes = path_.native();
    const QByteArray raw = QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
    return U"file://" + FromQt(QString::fromLatin1(raw.toPercentEncoding("/")));
}

String FolderItem::NativePath() const { return Encodings::UTF8.Decode(path_.native()); }

void FolderItem::CheckWritable() const { Check(::access(path_.c_str(), W_OK | X_OK) == 0); }

void FolderItem::CreateFolder() const
{
    std::error_code seenByExists;
    fs::create_directories(path_, seenByExists);
}

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

void FolderItem::Remove() const
{
    std::error_code error;
    if (!fs::remove(path_, error)) throw SystemError(error ? error.value() : ENOENT);
}

String Fncts::Naff(StringView name, bool toPath, bool normalise)
{
    String swapped(name);
    std::ranges::replace(swapped, toPath ? U':' : U'/', toPath ? U'/' : U':');
    return toPath && normalise ? CanonicalForm(swapped) : swapped;
}
