#include <cstdlib>
#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    setenv("LANGUAGE", "fr", 1);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
