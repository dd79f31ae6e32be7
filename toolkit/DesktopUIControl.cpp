#include "toolkit/DesktopUIControl.h"

#include "toolkit/DesktopWindow.h"
#include "toolkit/core/QtText.h"

#include <QWidget>
#include <algorithm>

DesktopUIControl::DesktopUIControl(DesktopWindow& window, QWidget* widget, const Placement& placement)
    : widget_(widget)
    , window_(window)
    , placement_(placement)
{
    widget_->setParent(window_.Content());
    if (placement_.tab < 0)
        widget_->setFocusPolicy(static_cast<Qt::FocusPolicy>(widget_->focusPolicy() & ~Qt::TabFocus));
    Apply();
    widget_->setVisible(true);
    window_.Add(*this);
}

DesktopUIControl::~DesktopUIControl()
{
    window_.Remove(*this);
    delete widget_;
}

String DesktopUIControl::Name() const { return FromQt(widget_->objectName()); }

void DesktopUIControl::SetName(StringView name) { widget_->setObjectName(ToQt(name)); }

void DesktopUIControl::Place(int left, int top, int width, int height)
{
    placement_.left = left;
    placement_.top = top;
    placement_.width = width;
    placement_.height = height;
    Apply();
}

bool DesktopUIControl::Enabled() const { return widget_->isEnabledTo(window_.Content()); }

void DesktopUIControl::SetEnabled(bool enabled) { widget_->setEnabled(enabled); }

bool DesktopUIControl::Visible() const { return !widget_->isHidden(); }

void DesktopUIControl::SetVisible(bool visible) { widget_->setVisible(visible); }

String DesktopUIControl::Tooltip() const { return FromQt(widget_->toolTip()); }

void DesktopUIControl::SetTooltip(StringView tooltip) { widget_->setToolTip(ToQt(tooltip)); }

void DesktopUIControl::SetAccessibleName(StringView name) { widget_->setAccessibleName(ToQt(name)); }

bool DesktopUIControl::TakesInput() const { return Visible() && Enabled() && window_.TakesInput(); }

void DesktopUIControl::SetFocus() { widget_->setFocus(); }

void DesktopUIControl::SetFocusByTabAlone() { widget_->setFocusPolicy(Qt::TabFocus); }

void DesktopUIControl::Apply()
{
    // A control that begins in the content is drawn to its end, even where its placement is a point too high.
    const auto visible = [](int start, int extent, int room) {
        return std::max(start < room ? std::min(extent, room - start) : extent, 0);
    };
    widget_->setGeometry(placement_.left, placement_.top, visible(placement_.left, placement_.width, window_.Width()),
                         visible(placement_.top, placement_.height, window_.Height()));
}

void DesktopUIControl::Follow(int moreWidth, int moreHeight)
{
    const auto follow = [this](int more, unsigned near, unsigned far, int& start, int& extent) {
        if ((placement_.locks & far) == 0) return;
        ((placement_.locks & near) == 0 ? start : extent) += more;
    };
    follow(moreWidth, Lock::Left, Lock::Right, placement_.left, placement_.width);
    follow(moreHeight, Lock::Top, Lock::Bottom, placement_.top, placement_.height);
    Apply();
}
