#include "app/App.h"
#include "mainwindow/WinMain.h"

int main(int argc, char** argv)
{
    App app(argc, argv);
    WinMain window;
    window.Show();
    return app.Run();
}
