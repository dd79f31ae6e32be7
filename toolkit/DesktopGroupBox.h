/// A frame with a title around other controls, onto which files can be dropped.
#pragma once

#include "toolkit/DesktopUIControl.h"
#include "toolkit/core/FolderItem.h"

#include <functional>
#include <vector>

/// Files and folders that are dragged over the program.
struct DragItem {
    std::vector<FolderItem> FolderItems;
};

/// The controls that stand in the frame are controls of the window like all others, made after it.
class DesktopGroupBox : public DesktopUIControl {
public:
    DesktopGroupBox(DesktopWindow& window, const Placement& placement, StringView caption);

    /// Files are dragged into the frame, or out of it again, or dropped. All three are to be set.
    std::function<void()> DragEnter, DragExit;
    std::function<void(const DragItem& item)> DropObject;
};
