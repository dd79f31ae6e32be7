#include "toolkit/Sound.h"

#include "toolkit/Probe.h"
#include "toolkit/SoundVoice.h"
#include "toolkit/WavFormat.h"

#include <QCoreApplication>
#include <QLibrary>
#include <algorithm>

namespace {

/// What makes voices, or null where the module is missing or its libraries are: sounds are an extra.
SoundVoiceMaker* LoadMaker()
{
    const QString programs = QCoreApplication::applicationDirPath();
    for (const char* const place : {"/", "/../lib/tarnivel/modules/", "/../PlugIns/"}) {
        const QString module = programs + QLatin1String(place) + QStringLiteral("libtarnivel_sound");
        if (const auto found = QLibrary::resolve(module, "MakeSoundVoice"))
            return reinterpret_cast<SoundVoiceMaker*>(found);
    }
    return nullptr;
}

} // namespace

std::unique_ptr<Sound> Sound::OpenAsSound(const FolderItem& file)
{
    return WavFormat::Of(file.Path()) ? std::unique_ptr<Sound>(new Sound(file)) : nullptr;
}

Sound::Sound(FolderItem file)
    : file_(std::move(file))
{
}

Sound::~Sound() = default;

std::unique_ptr<Sound> Sound::Clone() const
{
    std::unique_ptr<Sound> second(new Sound(file_));
    second->volume_ = volume_;
    return second;
}

bool Sound::IsPlaying() const { return voice_ && voice_->IsPlaying(); }

void Sound::Play()
{
    if (Probe* const probe = Probe::Current()) {
        probe->Sounds.push_back(file_.Name());
        return;
    }
    static SoundVoiceMaker* const make = LoadMaker();
    if (!voice_ && make) {
        if (const auto format = WavFormat::Of(file_.Path())) voice_.reset(make(file_.Path().c_str(), *format));
    }
    if (voice_) voice_->Play(volume_);
}

int Sound::Volume() const { return volume_; }

void Sound::SetVolume(int percent)
{
    volume_ = std::clamp(percent, 0, 100);
    if (voice_) voice_->SetVolume(volume_);
}
