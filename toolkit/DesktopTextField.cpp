#include "toolkit/Appearance.h"
#include "toolkit/DesktopControls.h"
#include "toolkit/DocumentText.h"
#include "toolkit/EditCommands.h"
#include "toolkit/core/QtText.h"

#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
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
    {
        setReadOnly(style.readOnly);
        setMaxLength(std::numeric_limits<int>::max());
        if (style.oneLine) connect(this, &QLineEdit::textEdited, this, &Field::JoinLines);
    }

    void Show(const QString& text)
    {
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
        if (event->matches(QKeySequence::Paste) && Take(QGuiApplication::clipboard()->mimeData())) return;
        QLineEdit::keyPressEvent(event);
    }

    void mouseReleaseEvent(QMouseEvent* event) override
    {
        const bool pastes = event->button() == Qt::MiddleButton && QGuiApplication::clipboard()->supportsSelection();
        if (pastes && Take(QGuiApplication::clipboard()->mimeData(QClipboard::Selection))) return;
        QLineEdit::mouseReleaseEvent(event);
    }

    void contextMenuEvent(QContextMenuEvent* event) override
    {
        QMenu* const menu = createStandardContextMenu();
        menu->setAttribute(Qt::WA_DeleteOnClose);
        const QString key = QKeySequence(QKeySequence::Paste).toString(QKeySequence::NativeText);
        for (QAction* const action : menu->actions()) {
            if (!action->text().endsWith(key)) continue;
            action->disconnect(this);
            connect(action, &QAction::triggered, this, [this] { Edit(EditCommand::Paste, this); });
        }
        menu->popup(event->globalPos());
    }

    void dragEnterEvent(QDragEnterEvent* event) override
    {
        if (ItemIn(event->mimeData()))
            event->acceptProposedAction();
        else if (owner_.ItemGiven && event->mimeData()->hasUrls())
            event->ignore(); // Several items, or none that is there: their addresses are no path.
        else
            QLineEdit::dragEnterEvent(event);
    }

    void dropEvent(QDropEvent* event) override
    {
        if (Take(event->mimeData()))
            event->acceptProposedAction();
        else
            QLineEdit::dropEvent(event);
    }

private:
    /// The item that what is pasted or dropped stands for.
    [[nodiscard]] std::optional<FolderItem> ItemIn(const QMimeData* incoming) const
    {
        if (!incoming || !owner_.ItemGiven || !owner_.TakesInput() || incoming->urls().size() > 1) return {};
        return ItemOf(incoming->hasUrls() ? incoming->urls().constFirst().toString() : incoming->text().trimmed());
    }

    /// Gives it instead of changing the text; whether there was one.
    bool Take(const QMimeData* incoming)
    {
        const std::optional<FolderItem> item = ItemIn(incoming);
        if (item) owner_.ItemGiven(*item);
        return item.has_value();
    }

    void JoinLines(const QString& text)
    {
        if (OneLine(text) == text) return;
        const int caret = cursorPosition();
        setText(OneLine(text));
        setCursorPosition(caret);
    }

    DesktopTextField& owner_;
};

} // namespace

DesktopTextField::DesktopTextField(DesktopWindow& window, const Placement& placement, StringView text,
                                   const FieldStyle& style)
    : DesktopUIControl(window, new Field(*this, style), placement)
{
    SetBlackOnWhite(*widget_);
    SetTextColor(*widget_, QPalette::Text, style.color);
    SetText(text);
}

String DesktopTextField::Text() const { return FromQt(static_cast<QLineEdit*>(widget_)->text()); }

void DesktopTextField::SetText(StringView text) { static_cast<Field*>(widget_)->Show(ToQt(text)); }

void DesktopTextField::SelectAll() { static_cast<QLineEdit*>(widget_)->selectAll(); }
