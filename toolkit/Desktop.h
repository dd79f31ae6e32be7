/// What the desktop around the program offers: beep, links, keys, screen, file manager, clipboard.
#pragma once

#include "toolkit/core/FolderItem.h"

#include <functional>

class Sound;

namespace System {
/// The bell. Linux has none that is heard: X has it off, whatever it tells, and Wayland lacks it; so a sound, if there
/// is one, stands in.
void Beep(const Sound* standIn);
/// Opens a link with the program that the desktop uses for it. The text goes out as it stands. False where there is no
/// such program, and for a text that is no link, such as a name without a scheme.
bool GotoURL(StringView url);
} // namespace System

/// The keys held down at this moment.
namespace Keyboard {
bool AsyncShiftKey();
bool AsyncAltKey();
bool AsyncControlKey();
} // namespace Keyboard

/// A screen; sizes in points.
struct DesktopDisplay {
    int Width, Height;
    /// Screen 0 is the main one.
    static DesktopDisplay DisplayAt(int index);
};

namespace Clipboard {
void SetText(StringView text);
} // namespace Clipboard

/// Whether the program's windows are dark: on no desktop today, since the program has one look, the light one.
bool IsDarkMode();

/// Opens the item with the desktop's program for it: a folder in the file manager.
/// False where the desktop has no such program.
bool OpenItem(const FolderItem& item);
/// Shows the item selected in the file manager.
/// `failed` is called, a while later, where there is no file manager.
void RevealItem(const FolderItem& item, const std::function<void()>& failed);
/// Whether the platform shows the folder as one file. Linux knows no such folders.
bool IsPackage(const FolderItem& item);
