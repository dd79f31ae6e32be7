/// Beeps, the five sounds, and their volume.
///
/// A tick is a sixtieth of a second.
#pragma once

#include "toolkit/Sound.h"

namespace Fncts {

/// That many system beeps, 10 ticks apart: one for a refused action, three for a fault. None below 1.
void BeepNbT(Int16 count);

/// Waits so many ticks, in which the program repaints and its timers fire.
void Pause(std::uint16_t ticks);

/// Plays a sound without waiting for its end, over itself where it plays already. Null plays nothing. Dropped are so
/// many in a short time that they would pile up (see SoundThrottle), and one that a sound server keeps waiting for 2
/// seconds.
void PlayT(const Sound* sound);

/// Sets the volume, 0 to 100 percent, of the five sounds and of the beep.
void SetVolume(Int16 percent);

// Each sound is looked for once, at the first call; one that is missing or broken is null for good.
namespace _x_Bip {
Sound* Bip();
}
namespace _x_Whit {
Sound* Whit();
}
namespace _x_Glass_t {
Sound* Glass_t();
}
namespace _x_Agrafeuse_t {
Sound* Agrafeuse_t();
}
namespace _x_Msg {
Sound* Msg();
}

} // namespace Fncts
