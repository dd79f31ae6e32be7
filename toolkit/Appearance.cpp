#include "toolkit/Appearance.h"

#include "toolkit/core/QtText.h"

#include <QFontInfo>
#include <QFontMetrics>
#include <QTextEdit>
#include <algorithm>

namespace {

constexpr int SmallestFontSize = 9, ControlFontSize = 12, LargestControlFontSize = 14;

} // namespace

QPalette LightPalette()
{
    const QColor window(0xEFEFEF), disabled(0x666666);
    QPalette light(window, window);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        light.setColor(QPalette::Disabled, role, disabled);
    light.setColor(QPalette::PlaceholderText, disabled);
    light.setColor(QPalette::Highlight, 0x2A7AB0);
    light.setColor(QPalette::HighlightedText, Qt::white);
    light.setColor(QPalette::Link, Qt::blue);
    light.setColor(QPalette::ToolTipBase, 0xFFFFDC);
    light.setColor(QPalette::ToolTipText, Qt::black);
    return light;
}

void SetControlFont(QWidget& content)
{
#ifndef Q_OS_MACOS
    QFont font;
    font.setPixelSize(std::clamp(QFontInfo(font).pixelSize(), ControlFontSize, LargestControlFontSize));
    content.setFont(font);
#endif
}

void FitFont(QWidget& widget, const QString& caption, int room, int fontSize)
{
    QFont font = widget.font();
    int size = fontSize > 0 ? fontSize : QFontInfo(widget.parentWidget()->font()).pixelSize();
    font.setPixelSize(size);
    while (size > SmallestFontSize && QFontMetrics(font).size(0, caption).width() > room)
        font.setPixelSize(--size);
    widget.setFont(font);
}

QString Marked(StringView caption) { return ToQt(caption).replace(u'&', QStringLiteral("&&")); }

void SetTextColor(QWidget& widget, QPalette::ColorRole role, ColorGroup color)
{
    QPalette palette = widget.palette();
    palette.setColor(QPalette::Active, role, QColor(color.rgb));
    palette.setColor(QPalette::Inactive, role, QColor(color.rgb));
    widget.setPalette(palette);
}

QTextEdit* MakeReadOnlyText(QWidget* parent)
{
    auto* const text = new QTextEdit(parent);
    text->setReadOnly(true);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    text->setFrameShape(QFrame::NoFrame);
    text->setTabChangesFocus(true);
    text->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    QPalette palette = text->palette();
    palette.setColor(QPalette::Base, Qt::transparent);
    palette.setColor(QPalette::Text, palette.color(QPalette::WindowText));
    text->setPalette(palette);
    return text;
}
