#include "support/Sounds.h"

#include "support/SoundThrottle.h"
#include "toolkit/Desktop.h"
#include "toolkit/DesktopApplication.h"
#include "toolkit/core/System.h"

#include <chrono>
#include <thread>

namespace {

/// Never destroyed: the platform's sound system is gone before the program's last objects are.
Sound* LoadForGood(StringView fileName)
{
    const auto folder = ResourceFolder();
    const auto file = folder ? folder->Child(fileName) : std::nullopt;
    return file ? Sound::OpenAsSound(*file).release() : nullptr;
}

Sound* BeepSound()
{
    static Sound* const sound = LoadForGood(U"Beep.wav");
    return sound;
}

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

Sound* _x_Bip::Bip()
{
    static Sound* const permaSound = LoadForGood(U"Bip.wav");
    return permaSound;
}

Sound* _x_Whit::Whit()
{
    static Sound* const permaSound = LoadForGood(U"Whit.wav");
    return permaSound;
}

Sound* _x_Glass_t::Glass_t()
{
    static Sound* const permaSound = LoadForGood(U"Glass_t.wav");
    return permaSound;
}

Sound* _x_Agrafeuse_t::Agrafeuse_t()
{
    static Sound* const permaSound = LoadForGood(U"Agrafeuse_t.wav");
    return permaSound;
}

Sound* _x_Msg::Msg()
{
    static Sound* const permaSound = LoadForGood(U"Msg.wav");
    return permaSound;
}

} // namespace Fncts
