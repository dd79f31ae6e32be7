#include "support/Sounds.h"

#include "support/SoundThrottle.h"
#include "toolkit/Desktop.h"
#include "toolkit/DesktopApplication.h"
#include "toolkit/core/System.h"

#include <chrono>
#include <map>
#include <thread>

namespace {

/// Never destroyed: the platform's sound system is gone before the program's last objects are.
Sound* Permanent(StringView fileName)
{
    static auto& sounds = *new std::map<StringView, std::unique_ptr<Sound>>;
    const auto [sound, isNew] = sounds.try_emplace(fileName);
    const auto folder = isNew ? ResourceFolder() : std::nullopt;
    const auto file = folder ? folder->Child(fileName) : std::nullopt;
    if (file) sound->second = Sound::OpenAsSound(*file);
    return sound->second.get();
}

Sound* BeepSound() { return Permanent(U"Beep.wav"); }

} // namespace

namespace Fncts {

void BeepNbT(Int16 count)
{
    for (Int16 beep = 0; beep < count; ++beep) {
        if (beep > 0) Pause(10);
        System::Beep(BeepSound());
    }
}

void Pause(std::uint16_t ticks)
{
    constexpr std::chrono::milliseconds turn{2};
    const Int64 end = System::Ticks() + ticks;
    while (System::Ticks() < end) {
        DesktopApplication::YieldToPlatform();
        std::this_thread::sleep_for(turn);
    }
}

void PlayT(const Sound* sound)
{
    static SoundThrottle throttle;
    if (!throttle.Admit(System::Ticks()) || sound == nullptr) return;
    try {
        sound->Play();
    } catch (const std::exception&) {
        throttle.Penalise();
    }
}

void SetVolume(Int16 percent)
{
    for (Sound* const sound : {_x_Bip::Bip(), _x_Whit::Whit(), _x_Glass_t::Glass_t(), _x_Agrafeuse_t::Agrafeuse_t(),
                               _x_Msg::Msg(), BeepSound()})
        if (sound != nullptr) sound->SetVolume(percent);
}

Sound* _x_Bip::Bip() { return Permanent(U"Bip.wav"); }

Sound* _x_Whit::Whit() { return Permanent(U"Whit.wav"); }

Sound* _x_Glass_t::Glass_t() { return Permanent(U"Glass_t.wav"); }

Sound* _x_Agrafeuse_t::Agrafeuse_t() { return Permanent(U"Agrafeuse_t.wav"); }

Sound* _x_Msg::Msg() { return Permanent(U"Msg.wav"); }

} // namespace Fncts
