#include "toolkit/DesktopProgressBar.h"

#include <QProgressBar>

DesktopProgressBar::DesktopProgressBar(DesktopWindow& window, const Placement& placement)
    : DesktopUIControl(window, new QProgressBar, placement)
{
    static_cast<QProgressBar*>(widget_)->setRange(0, 100);
}

void DesktopProgressBar::SetValue(int percent) { static_cast<QProgressBar*>(widget_)->setValue(percent); }
