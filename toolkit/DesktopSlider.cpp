#include "toolkit/DesktopSlider.h"

#include <QSlider>

DesktopSlider::DesktopSlider(DesktopWindow& window, const Placement& placement, const SliderStyle& style)
    : DesktopUIControl(window, new QSlider(Qt::Horizontal), placement)
{
    auto* const slider = static_cast<QSlider*>(widget_);
    slider->setRange(style.minimum, style.maximum);
    slider->setSingleStep(style.lineStep);
    slider->setPageStep(style.pageStep);
    slider->setValue(style.value);
    QObject::connect(slider, &QSlider::valueChanged, slider, [this] {
        if (ValueChanged) ValueChanged();
    });
}

int DesktopSlider::Value() const { return static_cast<QSlider*>(widget_)->value(); }

void DesktopSlider::SetValue(int value) { static_cast<QSlider*>(widget_)->setValue(value); }
