/// A bar that shows how far a long work is.
#pragma once

#include "toolkit/DesktopUIControl.h"

class DesktopProgressBar : public DesktopUIControl {
public:
    DesktopProgressBar(DesktopWindow& window, const Placement& placement);

    /// 0 to 100 percent.
    void SetValue(int percent);
};
