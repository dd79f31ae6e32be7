#include "toolkit/Sound.h"

#include "toolkit/Probe.h"
#include "toolkit/core/QtText.h"

#include <QCoreApplication>
#include <QLibrary>
#include <QUrl>
#include <algorithm>

namespace {

using SoundPlayer = void(const QUrl& file, float volume);

/// What plays, or null where the module is missing or its libraries are: sounds are an extra.
SoundPlayer* LoadPlayer()
{
    const QString programs = QCoreApplication::applicationDirPath();
    for (const char* const place : {"/", "/../lib/tarnivel/modules/", "/../PlugIns/"}) {
        const QString module = programs + QLatin1String(place) + QStringLiteral("libtarnivel_sound");
        QLibrary library(module);
        library.setLoadHints(QLibrary::PreventUnloadHint); // its thread may run to the end of the process
        if (const auto found = library.resolve("PlaySound")) return reinterpret_cast<SoundPlayer*>(found);
    }
    return nullptr;
}

} // namespace

std::unique_ptr<Sound> Sound::OpenAsSound(const FolderItem& file)
{
    return std::filesystem::is_regular_file(file.Path()) ? std::unique_ptr<Sound>(new Sound(file)) : nullptr;
}

Sound::Sound(FolderItem file)
    : file_(std::move(file))
{
}

bool Sound::Play() const
{
    if (Probe* const probe = Probe::Current()) {
        probe->Sounds.push_back(file_.Name());
        return true;
    }
    static SoundPlayer* const play = LoadPlayer();
    if (play) play(QUrl::fromLocalFile(ToQt(file_.NativePath())), static_cast<float>(volume_) / 100);
    return play != nullptr;
}

void Sound::SetVolume(int percent) { volume_ = std::clamp(percent, 0, 100); }
