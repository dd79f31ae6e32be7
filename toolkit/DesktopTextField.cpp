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

class Field final : public QLineEdit {
public:
    Field(DesktopTextField& owner, const FieldStyle& style)
        : owner_(owner)
    {
        setReadOnly(style.readOnly);
        setMaxLength(std::numeric_limits<int>::max());
        if (style.oneLine) KeepOneLine(*this);
    }

    void Show(const QString& text)
    {
        setText(text);
        setCursorPosition(0);
    }

    /// Replaces what was typed by what stands for it.
    void Tidy()
    {
        if (!owner_.Tidied || !isModified()) return;
        setModified(false);
        if (const QString tidy = TidyOf(text()); tidy != text()) Replace(tidy);
    }

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
        const bool escape = event->key() == Qt::Key_Escape;
        if ((enter || escape) && !owner_.TakesInput()) return;
        if (enter) Tidy();
        if (enter && owner_.Entered) return owner_.Entered();
        if (escape && owner_.Escaped) return owner_.Escaped();
        const bool ofSelection = event->keyCombination() == (Qt::CTRL | Qt::SHIFT | Qt::Key_Insert);
        const auto source = ofSelection ? QClipboard::Selection : QClipboard::Clipboard;
        if (event->matches(QKeySequence::Paste) && Paste(source)) return;
        QLineEdit::keyPressEvent(event);
    }

    void mouseReleaseEvent(QMouseEvent* event) override
    {
        if (event->button() == Qt::MiddleButton && Paste(QClipboard::Selection)) return;
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

    void focusOutEvent(QFocusEvent* event) override
    {
        QLineEdit::focusOutEvent(event);
        if (event->reason() != Qt::PopupFocusReason) Tidy();
    }

    void dragEnterEvent(QDragEnterEvent* event) override { Drag(*event); }

    void dragMoveEvent(QDragMoveEvent* event) override { Drag(*event); }

    void dropEvent(QDropEvent* event) override
    {
        if (IsForOwner(*event->mimeData())) {
            event->accept();
            return owner_.ItemDropped(ItemIn(*event->mimeData()));
        }
        if (owner_.Tidied && event->mimeData()->urls().size() == 1) {
            event->acceptProposedAction(); // a link is a whole address, wherever in the old one it was let go
            return Replace(TidyOf(event->mimeData()->urls().constFirst().toString()));
        }
        QLineEdit::dropEvent(event);
        Tidy();
    }

private:
    [[nodiscard]] bool IsForOwner(const QMimeData& dragged) const { return owner_.ItemDropped && dragged.hasUrls(); }

    [[nodiscard]] static std::optional<FolderItem> ItemIn(const QMimeData& dragged)
    {
        if (dragged.urls().size() != 1) return {};
        return FolderItem::Named(FromQt(dragged.urls().constFirst().toString()));
    }

    void Drag(QDragMoveEvent& event)
    {
        if (!IsForOwner(*event.mimeData())) return QLineEdit::dragMoveEvent(&event);
        if (!owner_.TakesInput()) return event.ignore();
        // It can be let go over the field all the same, which is answered with the reason.
        event.setDropAction(owner_.TakesItem(ItemIn(*event.mimeData())) ? Qt::CopyAction : Qt::IgnoreAction);
        event.accept();
    }

    [[nodiscard]] QString TidyOf(const QString& text) const { return ToQt(owner_.Tidied(FromQt(text.trimmed()))); }

    void Replace(const QString& tidy)
    {
        selectAll();
        insert(tidy);
        setModified(false);
    }

    /// Puts in what stands for a pasted text; false where that is for Qt to do.
    bool Paste(QClipboard::Mode source)
    {
        const QMimeData* const pasted = QGuiApplication::clipboard()->mimeData(source);
        if (!owner_.Tidied || isReadOnly() || !pasted || pasted->urls().size() > 1) return false;
        const QString text = pasted->hasUrls() ? pasted->urls().constFirst().toString() : pasted->text();
        const QString tidy = TidyOf(text);
        if (tidy == text) return false;
        if (tidy == text.trimmed())
            insert(tidy);
        else
            Replace(tidy);
        return true;
    }

    DesktopTextField& owner_;
};

} // namespace

DesktopTextField::DesktopTextField(DesktopWindow& window, const Placement& placement, StringView text,
                                   const FieldStyle& style)
    : DesktopUIControl(window, new Field(*this, style), placement)
{
    SetTextColor(*widget_, QPalette::Text, style.color);
    SetText(text);
}

String DesktopTextField::Text() const
{
    auto* const field = static_cast<Field*>(widget_);
    field->Tidy();
    return FromQt(field->text());
}

void DesktopTextField::SetText(StringView text) { static_cast<Field*>(widget_)->Show(ToQt(text)); }

void DesktopTextField::SelectAll() { static_cast<QLineEdit*>(widget_)->selectAll(); }
