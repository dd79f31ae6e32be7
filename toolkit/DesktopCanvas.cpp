#include "toolkit/DesktopCanvas.h"

#include <QEvent>
#include <QPainter>
#include <QWidget>

namespace {

class CanvasWidget final : public QWidget {
public:
    explicit CanvasWidget(DesktopCanvas& owner)
        : owner_(owner)
    {
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        if (!owner_.Paint) return;
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        Graphics graphics(painter);
        owner_.Paint(graphics, width(), height());
    }

    void changeEvent(QEvent* event) override
    {
        if (event->type() == QEvent::EnabledChange) setAttribute(Qt::WA_TransparentForMouseEvents, !isEnabled());
        QWidget::changeEvent(event);
    }

private:
    DesktopCanvas& owner_;
};

} // namespace

void Graphics::SetDrawingColor(ColorGroup color, int transparency)
{
    QColor shown(color.rgb);
    shown.setAlphaF(1.0F - static_cast<float>(transparency) / 100.0F);
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(shown);
}

void Graphics::FillRectangle(int left, int top, int width, int height) { painter_.drawRect(left, top, width, height); }

void Graphics::FillRoundRectangle(int left, int top, int width, int height, int cornerWidth, int cornerHeight)
{
    painter_.drawRoundedRect(left, top, width, height, cornerWidth / 2.0, cornerHeight / 2.0);
}

DesktopCanvas::DesktopCanvas(DesktopWindow& window, const Placement& placement)
    : DesktopUIControl(window, new CanvasWidget(*this), placement)
{
}

void DesktopCanvas::AllowFocus() { widget_->setFocusPolicy(TabIndex() >= 0 ? Qt::TabFocus : Qt::ClickFocus); }
