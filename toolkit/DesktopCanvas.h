/// An area that the program paints itself, and what it paints with.
#pragma once

#include "toolkit/Color.h"
#include "toolkit/DesktopUIControl.h"

#include <functional>

class QPainter;

/// The painting of one area; positions and sizes in points of the area.
class Graphics {
public:
    explicit Graphics(QPainter& painter)
        : painter_(painter)
    {
    }

    /// `transparency` in percent: 0 covers, 100 is not seen.
    void SetDrawingColor(ColorGroup color, int transparency = 0);
    void FillRectangle(int left, int top, int width, int height);
    void FillRoundRectangle(int left, int top, int width, int height, int cornerWidth, int cornerHeight);

private:
    QPainter& painter_;
};

/// A disabled canvas lets the mouse through to what lies below it.
class DesktopCanvas : public DesktopUIControl {
public:
    DesktopCanvas(DesktopWindow& window, const Placement& placement);

    /// Lets `SetFocus` give it the focus, and the Tab key if it has a place in that order.
    void AllowFocus();

    std::function<void(Graphics& graphics, int width, int height)> Paint;
};
