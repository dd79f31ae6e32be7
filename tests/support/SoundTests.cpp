#include "support/SoundThrottle.h"
#include "support/Sounds.h"
#include "toolkit/Probe.h"
#include "toolkit/core/System.h"

#include <gtest/gtest.h>

namespace {

TEST(SoundThrottle, AdmitsFiftyAndOneMoreEveryTwelveTicks)
{
    SoundThrottle throttle;
    const auto admitted = [&](Int64 now) {
        int count = 0;
        while (count < 100 && throttle.Admit(now))
            ++count;
        return count;
    };
    EXPECT_EQ(admitted(1000), 50);
    EXPECT_EQ(admitted(1011), 0);
    EXPECT_EQ(admitted(1012), 1) << "a refused sound doesn't put the moment off";
    EXPECT_EQ(admitted(1036), 2);
    EXPECT_EQ(admitted(5), 0) << "a clock that goes back forgets nothing";
    throttle.Penalise();
    EXPECT_EQ(admitted(1167), 0);
    EXPECT_EQ(admitted(1168), 1) << "two seconds later than without the failure";
}

TEST(Beeps, AreCountedWithPausesBetween)
{
    const Probe probe;
    const Int64 start = System::Ticks();
    for (const Int16 count : {Int16{0}, Int16{-1}, Int16{3}})
        Fncts::BeepNbT(count);
    EXPECT_EQ(probe.Beeps, 3);
    EXPECT_GE(System::Ticks() - start, 20);
}

} // namespace
