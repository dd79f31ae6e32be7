#include "app/Link.h"

#include "toolkit/Desktop.h"

void MakeLink(DesktopLabel& label, std::function<void()> follow)
{
    label.MouseEnter = [&label] {
        if (label.Enabled()) SetMouseCursor(Cursor::FingerPointer);
    };
    label.MouseExit = [] { SetMouseCursor(Cursor::StandardPointer); };
    label.MouseDown = [](int, int) { return true; };
    label.MouseUp = [&label, follow = std::move(follow)](int x, int y) {
        SetMouseCursor(Cursor::StandardPointer);
        if (x >= 0 && x <= label.Width() && y >= 0 && y <= label.Height()) follow();
    };
}
