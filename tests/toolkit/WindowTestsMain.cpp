#include "tests/toolkit/TestMenus.h"
#include "tests/toolkit/WidgetTest.h"

#include <cstdlib>

namespace {

DesktopApplication* application = nullptr;

} // namespace

DesktopApplication& TestApplication() { return *application; }

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    DesktopApplication theApplication(argc, argv, U"Window tests", U"1.0");
    theApplication.SetMenuBar(TestMenus::Current().Menus());
    application = &theApplication;
    return RUN_ALL_TESTS();
}
