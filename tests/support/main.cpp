#include "toolkit/DesktopApplication.h"

#include <cstdlib>
#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
    ::testing::InitGoogleTest(&argc, argv);
    const DesktopApplication application(argc, argv, U"Tests", U"0");
    return RUN_ALL_TESTS();
}
