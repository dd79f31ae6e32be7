#include "toolkit/Appearance.h"
#include "toolkit/DesktopControls.h"
#include "toolkit/DocumentText.h"
#include "toolkit/core/QtText.h"

#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QStyleOptionFocusRect>
#include <QStylePainter>
#include <QTextEdit>
#include <array>

namespace {

/// A label that is pressed like a button. A link of QLabel itself is neither told to a screen reader nor disabled by
/// one.
class Link final : public QLabel {
public:
    explicit Link(DesktopLabel& owner)
        : owner_(owner)
    {
        setFocusPolicy(Qt::TabFocus);
        setCursor(Qt::PointingHandCursor);
    }

    void Follow()
    {
        if (owner_.Pressed && owner_.TakesInput()) owner_.Pressed();
    }

protected:
    bool event(QEvent* event) override
    {
        // A default button of the window would take the key first.
        const bool presses = event->type() == QEvent::ShortcutOverride && IsPress(*static_cast<QKeyEvent*>(event));
        if (presses) event->accept();
        return presses || QLabel::event(event);
    }

    void mousePressEvent(QMouseEvent* event) override { event->accept(); }

    void mouseReleaseEvent(QMouseEvent* event) override
    {
        if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) Follow();
    }

    void keyPressEvent(QKeyEvent* event) override
    {
        if (!IsPress(*event)) return QLabel::keyPressEvent(event);
        Follow();
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
    static bool IsPress(const QKeyEvent& event)
    {
        return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter || event.key() == Qt::Key_Space;
    }

    DesktopLabel& owner_;
};

/// What a screen reader is told of a link, which can be pressed.
class Announced final : public QAccessibleWidget {
public:
    explicit Announced(Link& link)
        : QAccessibleWidget(&link, QAccessible::Link)
        , link_(link)
    {
    }

    static QAccessibleInterface* Make(const QString& /*className*/, QObject* object)
    {
        auto* const link = dynamic_cast<Link*>(object);
        return link ? new Announced(*link) : nullptr;
    }

    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        const QString text = QAccessibleWidget::text(kind);
        return kind == QAccessible::Name && text.isEmpty() ? link_.text() : text;
    }
    [[nodiscard]] QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& name) override
    {
        if (name == pressAction()) link_.Follow();
    }

private:
    Link& link_;
};

/// A text of several lines, which a QLabel would break at blanks alone.
QWidget* MakeMultiline(const LabelStyle& style)
{
    auto* const text = MakeReadOnlyText();
    text->setAcceptDrops(false);
    text->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    text->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    text->document()->setDocumentMargin(0);
    SetTextColor(*text, QPalette::Text, style.color);
    return text;
}

QWidget* MakeWidget(DesktopLabel& label, const LabelStyle& style)
{
    if (style.multiline) return MakeMultiline(style);
    if (!style.link) return new QLabel;
    QAccessible::installFactory(&Announced::Make);
    return new Link(label);
}

} // namespace

DesktopLabel::DesktopLabel(DesktopWindow& window, const Placement& placement, StringView text, const LabelStyle& style)
    : DesktopUIControl(window, MakeWidget(*this, style), placement)
    , fontSize_(style.fontSize)
{
    if (style.multiline) {
        SetText(text);
        return;
    }
    auto* const label = static_cast<QLabel*>(widget_);
    label->setTextFormat(Qt::PlainText);
    constexpr std::array alignments{Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight};
    label->setAlignment(alignments.at(static_cast<std::size_t>(style.alignment)) | Qt::AlignVCenter);
    QFont font = label->font();
    font.setBold(style.bold);
    font.setUnderline(style.underline);
    label->setFont(font);
    SetTextColor(*label, QPalette::WindowText, style.color);
    SetText(text);
}

String DesktopLabel::Text() const
{
    if (const auto* const lines = qobject_cast<QTextEdit*>(widget_))
        return FromDocument(lines->document()->toRawText());
    return FromQt(static_cast<QLabel*>(widget_)->text());
}

void DesktopLabel::SetText(StringView text)
{
    if (auto* const lines = qobject_cast<QTextEdit*>(widget_)) return lines->setPlainText(ToDocument(text));
    auto& label = static_cast<QLabel&>(*widget_);
    label.setText(ToQt(text));
    FitFont(label, label.text(), Width(), fontSize_);
}
