#include "app/App.h"
#include "mainwindow/WinMain.h"

#include <chrono>
#include <cstdlib>
#include <thread>

int main(int argc, char** argv)
{
    App app(argc, argv);
    WinMain window;
    window.Show();
    const int exitCode = app.Run();
    // All is written now; Qt would wait for a name server that doesn't answer.
    std::thread([exitCode] {
        std::this_thread::sleep_for(std::chrono::seconds(3));
        std::_Exit(exitCode);
    }).detach();
    return exitCode;
}
