#include "support/SoundThrottle.h"

#include <algorithm>

bool SoundThrottle::Admit(Int64 now)
{
    constexpr Int64 ticksToForget = 12;
    constexpr Int64 most = 50;
    const Int64 forgotten = std::max<Int64>(0, (now - TpDerTicks_) / ticksToForget);
    iNbrSon_ = std::max<Int64>(0, iNbrSon_ - forgotten);
    if (iNbrSon_ >= most) return false;
    TpDerTicks_ = now;
    ++iNbrSon_;
    return true;
}
