#include "tests/toolkit/TestMenus.h"

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    // The servers of the tests are on this computer, and its sound server is left alone.
    for (const char* const name : {"http_proxy", "https_proxy", "all_proxy", "HTTP_PROXY", "HTTPS_PROXY", "ALL_PROXY"})
        unsetenv(name);
    setenv("PULSE_SERVER", "unix:/nowhere", 1);
    DesktopApplication application(argc, argv, U"Tests", U"1.0");
    application.SetMenuBar(testMenus.bar);
    testApplication = &application;
    return RUN_ALL_TESTS();
}
