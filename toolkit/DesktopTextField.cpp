#include "toolkit/Appearance.h"
#include "toolkit/DesktopControls.h"
#include "toolkit/DocumentText.h"
#include "toolkit/core/QtText.h"

#include <QClipboard>
#include <QDropEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QUrl>
#include <limits>

namespace {

/// The existing item that a native absolute path or a "file://" address names.
std::optional<FolderItem> ItemOf(const QString& text)
{
    QUrl url(text);
    // Some programs name this machine.
    if (url.host() == QLatin1String("localhost")) url.setHost({});
    const QString path = url.isLocalFile() ? url.toLocalFile() : text;
    if (!path.startsWith(u'/') || path.contains(QChar())) return {};
    auto place = std::filesystem::path(path.toStdString()).lexically_normal();
    if (!place.has_filename() && place.has_relative_path()) place = place.parent_path();
    const FolderItem item(std::move(place));
    return item.Exists() ? std::optional(item) : std::nullopt;
}

class Field final : public QLineEdit {
public:
    Field(DesktopTextField& owner, const FieldStyle& style)
        : owner_(owner)
        , oneLine_(style.oneLine)
    {
        setReadOnly(style.readOnly);
        setMaxLength(std::numeric_limits<int>::max());
        connect(this, &QLineEdit::textEdited, this, [this](const QString& text) { Edited(text); });
    }

    void Show(const QString& text)
    {
        before_ = text;
        setText(text);
        setCursorPosition(0);
    }

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
        const bool escape = event->key() == Qt::Key_Escape;
        if ((enter || escape) && !owner_.TakesInput()) return;
        if (enter && owner_.Entered) return owner_.Entered();
        if (escape && owner_.Escaped) return owner_.Escaped();
        const QScopedValueRollback typing(typing_, !event->matches(QKeySequence::Paste));
        QLineEdit::keyPressEvent(event);
    }

    void inputMethodEvent(QInputMethodEvent* event) override
    {
        const QScopedValueRollback typing(typing_, true);
        QLineEdit::inputMethodEvent(event);
    }

    void dragEnterEvent(QDragEnterEvent* event) override
    {
        if (DroppedItem(*event->mimeData()))
            event->acceptProposedAction();
        else if (owner_.ItemGiven && event->mimeData()->hasUrls())
            event->ignore(); // Several items, or none that is there: their addresses are no path.
        else
            QLineEdit::dragEnterEvent(event);
    }

    void dropEvent(QDropEvent* event) override
    {
        const std::optional<FolderItem> item = DroppedItem(*event->mimeData());
        if (!item) return QLineEdit::dropEvent(event);
        event->acceptProposedAction();
        owner_.ItemGiven(*item);
    }

private:
    [[nodiscard]] std::optional<FolderItem> DroppedItem(const QMimeData& dropped) const
    {
        if (!owner_.ItemGiven || !owner_.TakesInput() || dropped.urls().size() != 1) return {};
        return ItemOf(dropped.urls().front().toString());
    }

    void Edited(const QString& text)
    {
        const QString pasted = Pasted(text).trimmed();
        if (oneLine_ && OneLine(text) != text) {
            const int caret = cursorPosition();
            setText(OneLine(text));
            setCursorPosition(caret);
        }
        const std::optional<FolderItem> item = owner_.TakesInput() && pasted.size() > 1 ? ItemOf(pasted) : std::nullopt;
        if (!item) {
            before_ = text;
            return;
        }
        Show(before_);
        owner_.ItemGiven(*item);
    }

    /// The clipboard's text if the edit put it in front of the caret, or "". Keys other than the one that pastes don't,
    /// nor does what takes an edit back.
    [[nodiscard]] QString Pasted(const QString& text) const
    {
        if (!owner_.ItemGiven || typing_ || isRedoAvailable()) return {};
        for (const auto mode : {QClipboard::Clipboard, QClipboard::Selection}) {
            QString held = QGuiApplication::clipboard()->text(mode);
            if (!held.isEmpty() && text.left(cursorPosition()).endsWith(held)) return held;
        }
        return {};
    }

    DesktopTextField& owner_;
    const bool oneLine_;
    bool typing_ = false;
    /// The text before the edit that is under way.
    QString before_;
};

} // namespace

DesktopTextField::DesktopTextField(DesktopWindow& window, const Placement& placement, StringView text,
                                   const FieldStyle& style)
    : DesktopUIControl(window, new Field(*this, style), placement)
{
    SetTextColor(*widget_, QPalette::Text, style.color);
    SetText(text);
}

String DesktopTextField::Text() const { return FromQt(static_cast<QLineEdit*>(widget_)->text()); }

void DesktopTextField::SetText(StringView text) { static_cast<Field*>(widget_)->Show(ToQt(text)); }

void DesktopTextField::SelectAll() { static_cast<QLineEdit*>(widget_)->selectAll(); }
