#include "toolkit/Appearance.h"
#include "toolkit/DesktopControls.h"
#include "toolkit/DocumentText.h"
#include "toolkit/core/QtText.h"

#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QStyleOptionFocusRect>
#include <QStylePainter>

namespace {

class LabelWidget final : public QLabel {
public:
    /// Null while the label is being made.
    DesktopLabel* owner = nullptr;

    [[nodiscard]] bool IsLink() const { return owner && owner->MouseUp; }
    void Follow()
    {
        if (Press(rect().center())) Release(rect().center());
    }

protected:
    bool event(QEvent* event) override
    {
        // A default button of the window would take the key first.
        const bool presses = event->type() == QEvent::ShortcutOverride && IsPress(*static_cast<QKeyEvent*>(event));
        if (presses) event->accept();
        return presses || QLabel::event(event);
    }

    void showEvent(QShowEvent* event) override
    {
        const bool stop = IsLink() && owner->TabIndex() >= 0;
        setFocusPolicy(stop ? Qt::TabFocus : Qt::NoFocus);
        QLabel::showEvent(event);
    }

    void mousePressEvent(QMouseEvent* event) override
    {
        event->setAccepted(event->button() == Qt::LeftButton && Press(event->position().toPoint()));
    }

    void mouseReleaseEvent(QMouseEvent* event) override
    {
        if (event->button() == Qt::LeftButton) Release(event->position().toPoint());
    }

    void keyPressEvent(QKeyEvent* event) override
    {
        if (!IsPress(*event)) return QLabel::keyPressEvent(event);
        Follow();
    }

    void enterEvent(QEnterEvent*) override
    {
        if (owner && owner->MouseEnter && owner->TakesInput()) owner->MouseEnter();
    }

    void leaveEvent(QEvent*) override
    {
        // In every case: what the pointer's entering has changed must not stay.
        if (owner && owner->MouseExit) owner->MouseExit();
    }

    void paintEvent(QPaintEvent* event) override
    {
        QLabel::paintEvent(event);
        if (!hasFocus()) return;
        QStyleOptionFocusRect ring;
        ring.initFrom(this);
        QStylePainter(this).drawPrimitive(QStyle::PE_FrameFocusRect, ring);
    }

private:
    [[nodiscard]] bool IsPress(const QKeyEvent& event) const
    {
        const int key = event.key();
        return IsLink() && (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space);
    }

    bool Press(QPoint point)
    {
        pressed_ = owner->MouseDown && owner->TakesInput() && owner->MouseDown(point.x(), point.y());
        return pressed_;
    }

    void Release(QPoint point)
    {
        const bool pressed = std::exchange(pressed_, false);
        if (pressed && owner->MouseUp && owner->TakesInput()) owner->MouseUp(point.x(), point.y());
    }

    bool pressed_ = false;
};

/// What a screen reader is told of a label: whether it is a link, which can be pressed.
class Announced final : public QAccessibleWidget {
public:
    explicit Announced(LabelWidget& label)
        : QAccessibleWidget(&label)
        , label_(label)
    {
    }

    static QAccessibleInterface* Make(const QString& /*className*/, QObject* object)
    {
        auto* const label = dynamic_cast<LabelWidget*>(object);
        return label ? new Announced(*label) : nullptr;
    }

    [[nodiscard]] QAccessible::Role role() const override
    {
        return label_.IsLink() ? QAccessible::Link : QAccessible::StaticText;
    }
    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        QString text = QAccessibleWidget::text(kind);
        return kind == QAccessible::Name && text.isEmpty() ? label_.text() : text;
    }
    [[nodiscard]] QStringList actionNames() const override
    {
        return label_.IsLink() ? QStringList{pressAction()} : QStringList();
    }
    void doAction(const QString& name) override
    {
        if (name == pressAction() && label_.IsLink()) label_.Follow();
    }

private:
    LabelWidget& label_;
};

Qt::AlignmentFlag AlignmentOf(TextAlignment alignment)
{
    switch (alignment) {
    case TextAlignment::Center:
        return Qt::AlignHCenter;
    case TextAlignment::Right:
        return Qt::AlignRight;
    case TextAlignment::Left:
        break;
    }
    return Qt::AlignLeft;
}

/// A text of several lines, which a QLabel would break at blanks alone.
QWidget* MakeMultiline(const LabelStyle& style)
{
    auto* const text = new QPlainTextEdit;
    text->setReadOnly(true);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    text->setAcceptDrops(false);
    text->setFrameShape(QFrame::NoFrame);
    text->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    text->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    text->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    text->document()->setDocumentMargin(0);
    text->setTabChangesFocus(true);
    QPalette colours = text->palette();
    colours.setColor(QPalette::Base, Qt::transparent);
    text->setPalette(colours);
    SetTextColor(*text, QPalette::Text, style.color.value_or(ColorGroup{}));
    return text;
}

} // namespace

DesktopLabel::DesktopLabel(DesktopWindow& window, const Placement& placement, StringView text, const LabelStyle& style)
    : DesktopUIControl(window, style.multiline ? MakeMultiline(style) : new LabelWidget, placement)
    , fontSize_(style.fontSize)
{
    if (style.multiline) {
        SetText(text);
        return;
    }
    auto* const label = static_cast<LabelWidget*>(widget_);
    label->owner = this;
    QAccessible::installFactory(&Announced::Make);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(AlignmentOf(style.alignment) | Qt::AlignVCenter);
    QFont font = label->font();
    font.setBold(style.bold);
    font.setUnderline(style.underline);
    label->setFont(font);
    if (style.color) SetTextColor(*label, QPalette::WindowText, *style.color);
    SetText(text);
}

String DesktopLabel::Text() const
{
    if (const auto* const lines = qobject_cast<QPlainTextEdit*>(widget_))
        return FromDocument(lines->document()->toRawText());
    return FromQt(static_cast<QLabel*>(widget_)->text());
}

void DesktopLabel::SetText(StringView text)
{
    if (auto* const lines = qobject_cast<QPlainTextEdit*>(widget_)) return lines->setPlainText(ToDocument(text));
    auto& label = static_cast<QLabel&>(*widget_);
    label.setText(ToQt(text));
    FitFont(label, label.text(), Width(), fontSize_);
}
