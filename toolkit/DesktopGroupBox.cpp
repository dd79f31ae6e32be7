#include "toolkit/DesktopGroupBox.h"

#include "toolkit/Appearance.h"

#include <QDropEvent>
#include <QGroupBox>
#include <QMimeData>
#include <QTimer>
#include <QUrl>

namespace {

/// Watches the window's content: what is dragged over a control inside the frame, which takes no drops, is told to
/// that. A group box of Qt would take drops only where no control lies above it.
class Drops final : public QObject {
public:
    Drops(DesktopGroupBox& owner, QWidget& frame)
        : QObject(&frame)
        , owner_(owner)
        , frame_(frame)
    {
        frame.parentWidget()->setAcceptDrops(true);
        frame.parentWidget()->installEventFilter(this);
        frame.window()->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::DragEnter:
        case QEvent::DragMove:
            Move(*static_cast<QDragMoveEvent*>(event));
            return true;
        case QEvent::DragLeave:
            Leave();
            return true;
        // A window that a dialog blocks isn't told where the drag goes, nor is any window when its source crashes.
        case QEvent::WindowBlocked:
        case QEvent::Enter:
            Leave();
            return false;
        case QEvent::Drop:
            Drop(*static_cast<QDropEvent*>(event));
            return true;
        default:
            return false;
        }
    }

private:
    static DragItem ItemOf(const QMimeData& dragged)
    {
        DragItem item;
        const QList<QUrl> urls = dragged.urls();
        // What is no local file counts too, as an item that isn't there.
        for (const QUrl& url : urls)
            item.FolderItems.emplace_back(url.toLocalFile().toStdString());
        return item;
    }

    void Move(QDragMoveEvent& event)
    {
        const bool over = frame_.geometry().contains(event.position().toPoint()) && event.mimeData()->hasUrls() &&
                          owner_.TakesInput();
        if (!over)
            Leave();
        else if (!std::exchange(inside_, true))
            owner_.DragEnter();
        // The content goes on being told where the pointer is.
        event.setDropAction(over ? Qt::CopyAction : Qt::IgnoreAction);
        event.accept();
    }

    void Leave()
    {
        if (std::exchange(inside_, false)) owner_.DragExit();
    }

    void Drop(QDropEvent& event)
    {
        if (!std::exchange(inside_, false)) return event.ignore();
        event.setDropAction(Qt::CopyAction);
        event.accept();
        // The other program waits for the end of this event, and the handler may ask the user.
        QTimer::singleShot(0, this, [this, dropped = ItemOf(*event.mimeData())] {
            if (owner_.TakesInput()) owner_.DropObject(dropped);
        });
    }

    DesktopGroupBox& owner_;
    QWidget& frame_;
    bool inside_ = false;
};

} // namespace

DesktopGroupBox::DesktopGroupBox(DesktopWindow& window, const Placement& placement, StringView caption)
    : DesktopUIControl(window, new QGroupBox, placement)
{
    new Drops(*this, *widget_);
    static_cast<QGroupBox*>(widget_)->setTitle(Marked(caption));
}
