/// How many sounds in a row are too many.
#pragma once

#include "toolkit/core/Text.h"

/// Counts recent sounds: 50 at the most, of which one is forgotten every 12 ticks.
class SoundThrottle {
public:
    /// Whether a sound may play at the moment `now`, in ticks. If so it is counted.
    bool Admit(Int64 now);
    /// A sound failed: for two seconds (120 ticks) more nothing is forgotten.
    void Penalise() { TpDerTicks_ += 120; }

private:
    Int64 iNbrSon_ = 0;
    Int64 TpDerTicks_ = 0;
};
