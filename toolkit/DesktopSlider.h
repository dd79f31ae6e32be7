/// A slider.
#pragma once

#include "toolkit/DesktopUIControl.h"

#include <functional>

struct SliderStyle {
    int minimum, maximum, value;
    /// How far an arrow key moves it, and how far a page key or a click beside the knob does.
    int lineStep, pageStep;
};

/// A horizontal slider without tick marks. Its value follows the knob while that is dragged.
class DesktopSlider : public DesktopUIControl {
public:
    DesktopSlider(DesktopWindow& window, const Placement& placement, const SliderStyle& style);

    [[nodiscard]] int Value() const;
    void SetValue(int value);

    /// The value changed, by the user or by `SetValue`.
    std::function<void()> ValueChanged;
};
