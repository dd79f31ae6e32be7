#include "toolkit/Sound.h"

#include "toolkit/Probe.h"
#include "toolkit/SoundVoice.h"

#include <QCoreApplication>
#include <QLibrary>
#include <QtEndian>
#include <algorithm>
#include <array>
#include <fstream>
#include <string_view>

namespace {

/// The head of a piece of a WAV file: four letters and the number of bytes that follow.
struct ChunkHead {
    std::array<char, 4> name;
    quint32 size;

    [[nodiscard]] bool Is(std::string_view letters) const { return std::string_view(name.data(), 4) == letters; }
};

bool Read(std::istream& stream, ChunkHead& head)
{
    std::array<char, 4> size{};
    if (!stream.read(head.name.data(), 4) || !stream.read(size.data(), 4)) return false;
    head.size = qFromLittleEndian<quint32>(size.data());
    return true;
}

/// Whether the bytes of the format chunk speak of plain samples of 16 bits.
bool IsPlain16Bit(std::istream& format)
{
    constexpr int plain = 1;
    std::array<char, 16> fields{};
    return format.read(fields.data(), fields.size()) && qFromLittleEndian<quint16>(fields.data()) == plain &&
           qFromLittleEndian<quint16>(fields.data() + 14) == 16;
}

bool IsWavFile(const std::filesystem::path& path)
{
    std::error_code unreadable;
    // A pipe would wait for its writer.
    if (!std::filesystem::is_regular_file(path, unreadable)) return false;
    std::ifstream file(path, std::ios::binary);
    std::array<char, 4> form{};
    ChunkHead head{};
    if (!Read(file, head) || !head.Is("RIFF") || !file.read(form.data(), 4)) return false;
    if (std::string_view(form.data(), 4) != "WAVE") return false;
    bool formatIsKnown = false;
    while (Read(file, head)) {
        if (head.Is("data")) return formatIsKnown && head.size > 0;
        const auto start = file.tellg();
        if (head.Is("fmt ")) formatIsKnown = IsPlain16Bit(file);
        // Chunks begin at even offsets.
        file.seekg(start + (std::streamoff{head.size} + head.size % 2));
    }
    return false;
}

/// What makes voices, or null where the module is missing or its libraries are: sounds are an extra.
SoundVoiceMaker* LoadMaker()
{
    const QString programs = QCoreApplication::applicationDirPath();
    for (const char* const place : {"/", "/../lib/tarnivel/", "/../PlugIns/"}) {
        const QString module = programs + QLatin1String(place) + QStringLiteral("libtarnivel_sound");
        if (const auto found = QLibrary::resolve(module, "MakeSoundVoice"))
            return reinterpret_cast<SoundVoiceMaker*>(found);
    }
    return nullptr;
}

} // namespace

std::unique_ptr<Sound> Sound::OpenAsSound(const FolderItem& file)
{
    return IsWavFile(file.Path()) ? std::unique_ptr<Sound>(new Sound(file)) : nullptr;
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
    if (!voice_ && make) voice_.reset(make(file_.Path().c_str()));
    if (voice_) voice_->Play(volume_);
}

int Sound::Volume() const { return volume_; }

void Sound::SetVolume(int percent)
{
    volume_ = std::clamp(percent, 0, 100);
    if (voice_) voice_->SetVolume(volume_);
}
