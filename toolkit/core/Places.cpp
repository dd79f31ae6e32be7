#include "toolkit/core/FolderItem.h"
#include "toolkit/core/QtText.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QUrl>
#include <cstdlib>
#include <system_error>
#include <utility>

namespace fs = std::filesystem;

namespace {

/// The folder that a test has put in the place of the platform's.
std::optional<fs::path>& VolumesPlace()
{
    static std::optional<fs::path> place;
    return place;
}

bool IsFolderOrLeadsToOne(const fs::path& path)
{
    std::error_code ignored;
    return fs::is_directory(path, ignored);
}

/// Qt would take the root of the file system for the home of a user who has none.
std::optional<fs::path> Home()
{
    const char* const home = std::getenv("HOME"); // NOLINT(concurrency-mt-unsafe)
    if (!home || !fs::path(home).is_absolute() || !IsFolderOrLeadsToOne(home)) return std::nullopt;
    return home;
}

std::optional<FolderItem> Place(QStandardPaths::StandardLocation location)
{
    const QByteArray path = QFile::encodeName(QStandardPaths::writableLocation(location));
    if (!Home() || path.isEmpty()) return std::nullopt;
    return FolderItem(path.toStdString());
}

#ifndef Q_OS_MACOS
/// A folder that a variable names, or that is `usual` below the home. Not by Qt, which takes relative paths and changes
/// bytes that are no UTF-8.
std::optional<FolderItem> Place(const char* variable, const char* usual)
{
    const std::optional<fs::path> home = Home();
    if (!home) return std::nullopt;
    const char* const named = std::getenv(variable); // NOLINT(concurrency-mt-unsafe)
    return FolderItem(named && fs::path(named).is_absolute() ? fs::path(named) : *home / usual);
}
#endif

} // namespace

std::optional<FolderItem> FolderItem::Named(StringView text)
{
    const QString name = ToQt(text);
    QUrl url(name);
    // Some programs name this machine.
    if (url.host() == QLatin1String("localhost")) url.setHost({});
    QString path = url.isLocalFile() ? url.toLocalFile() : name;
    if (path.startsWith(QLatin1String("~/")) && Home()) path.replace(0, 1, QDir::homePath());
    if (!path.startsWith(u'/') || path.contains(QChar())) return {};
    const FolderItem item(fs::path(QFile::encodeName(path).toStdString()).lexically_normal());
    return item.Exists() ? std::optional(item) : std::nullopt;
}

std::vector<FolderItem> FolderItem::Drives()
{
    const std::optional<FolderItem> volumes = VolumesFolder();
    std::vector<FolderItem> drives = volumes ? volumes->Children() : std::vector<FolderItem>();
    drives.insert(drives.begin(), FolderItem("/"));
    return drives;
}

std::optional<FolderItem> FolderItem::VolumesFolder()
{
    FolderItem folder(VolumesPlace().value_or("/Volumes"));
    if (!IsFolderOrLeadsToOne(folder.path_)) return std::nullopt;
    return folder;
}

void FolderItem::SetVolumesFolder(std::optional<fs::path> folder) { VolumesPlace() = std::move(folder); }

std::optional<FolderItem> SpecialFolder::ApplicationData()
{
#ifdef Q_OS_MACOS
    std::optional<FolderItem> folder = Place(QStandardPaths::GenericDataLocation);
#else
    std::optional<FolderItem> folder = Place("XDG_DATA_HOME", ".local/share");
#endif
    if (!folder) return std::nullopt;
    folder->CreateFolder();
    return IsFolderOrLeadsToOne(folder->Path()) ? folder : std::nullopt;
}

std::optional<FolderItem> SpecialFolder::Preferences()
{
#ifdef Q_OS_MACOS
    return Place(QStandardPaths::GenericConfigLocation);
#else
    return Place("XDG_CONFIG_HOME", ".config");
#endif
}

std::optional<FolderItem> SpecialFolder::Documents()
{
    const std::optional<FolderItem> folder = Place(QStandardPaths::DocumentsLocation);
    return folder && IsFolderOrLeadsToOne(folder->Path()) ? folder : std::nullopt;
}

FolderItem ExecutableFile()
{
    std::error_code error;
    const fs::path file = fs::read_symlink("/proc/self/exe", error);
    if (!error) return FolderItem(file);
    return FolderItem(QFile::encodeName(QCoreApplication::applicationFilePath()).toStdString());
}

std::optional<FolderItem> ResourceFolder()
{
    const fs::path programs = ExecutableFile().Path().parent_path();
    const fs::path above = programs.parent_path();
    for (const fs::path& place : {programs / "resources", above / "share" / "tarnivel", above / "Resources"}) {
        if (IsFolderOrLeadsToOne(place)) return FolderItem(place);
    }
    return std::nullopt;
}
