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
bool HasHome()
{
    const char* home = std::getenv("HOME"); // NOLINT(concurrency-mt-unsafe)
    return home && fs::path(home).is_absolute() && IsFolderOrLeadsToOne(home);
}

std::optional<FolderItem> Place(QStandardPaths::StandardLocation location)
{
    if (!HasHome()) return std::nullopt;
    const QByteArray path = QFile::encodeName(QStandardPaths::writableLocation(location));
    if (path.isEmpty()) return std::nullopt;
    return FolderItem(path.toStdString());
}

} // namespace

std::optional<FolderItem> FolderItem::Named(StringView text)
{
    const QString name = ToQt(text);
    QUrl url(name);
    // Some programs name this machine.
    if (url.host() == QLatin1String("localhost")) url.setHost({});
    QString path = url.isLocalFile() ? url.toLocalFile() : name;
    if (path.startsWith(QLatin1String("~/")) && HasHome()) path.replace(0, 1, QDir::homePath());
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
    std::optional<FolderItem> folder = Place(QStandardPaths::GenericDataLocation);
    if (!folder) return std::nullopt;
    folder->CreateFolder();
    return IsFolderOrLeadsToOne(folder->Path()) ? folder : std::nullopt;
}

std::optional<FolderItem> SpecialFolder::Preferences() { return Place(QStandardPaths::GenericConfigLocation); }

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
