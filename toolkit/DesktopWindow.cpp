#include "toolkit/DesktopWindow.h"

#include "toolkit/Appearance.h"
#include "toolkit/DesktopApplication.h"
#include "toolkit/Probe.h"
#include "toolkit/StatusBar.h"
#include "toolkit/StrayKeys.h"
#include "toolkit/core/QtText.h"

#include <QAbstractButton>
#include <QAccessibleWidget>
#include <QApplication>
#include <QCloseEvent>
#include <QMenuBar>
#include <QPointer>
#include <QScreen>
#include <QShortcut>
#include <QVBoxLayout>
#include <QWindow>
#include <algorithm>
#include <utility>

/// The window of the platform: the content between a menu bar and a status bar, where there are such.
class DesktopWindow::Shell final : public QWidget {
public:
    Shell(DesktopWindow& owner, const WindowStyle& style);

    void ResizeContent(int width, int height);
    /// From the main screen's top left corner, as the two positions that follow.
    void MoveContent(int left, int top);
    /// While the window is maximised, the place that it has otherwise, if `restored`.
    [[nodiscard]] WindowPlace Place(bool restored) const;
    /// How far the content lies below the top edge.
    [[nodiscard]] int MenuHeight() const;

    [[nodiscard]] int StatusHeight() const { return statusBar ? statusBar->height() : 0; }

    QWidget* const content;
    StatusBar* const statusBar;
    /// By a dialog.
    bool isBlocked = false;
    bool keyboardIsBlocked = false;
    QPointer<QWidget> focusBefore;

    /// Activates the dialog that keeps the user from this window: here the keyboard would move nothing.
    void HandKeyboardOn() const;

    /// The window manager keeps this window above that one.
    void StandAbove(const DesktopWindow* other)
    {
        winId();
        windowHandle()->setTransientParent(other ? other->shell_->windowHandle() : nullptr);
    }

protected:
    bool focusNextPrevChild(bool next) override { return !keyboardIsBlocked && QWidget::focusNextPrevChild(next); }
    bool event(QEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    /// To a screen reader a plain widget is none of the windows or dialogs that it announces.
    static QAccessibleInterface* Announce(const QString& className, QObject* object);
    /// Where the main screen begins among several.
    static QPoint MainScreen()
    {
        const QScreen* const screen = QGuiApplication::screens().value(0);
        return screen ? screen->geometry().topLeft() : QPoint();
    }

    DesktopWindow& owner_;
    QMenuBar* const menuBar_;
    QPoint placeLastSet_;
};

namespace {

Qt::WindowFlags FlagsOf(const WindowStyle& style)
{
    const Qt::WindowFlags flags = (style.movableModal ? Qt::Dialog : Qt::Window) | Qt::CustomizeWindowHint |
                                  Qt::WindowTitleHint | Qt::WindowSystemMenuHint;
    return style.hasTitleButtons ? flags | Qt::WindowCloseButtonHint | Qt::WindowMinMaxButtonsHint : flags;
}

/// The widgets that make up one place in the order of the Tab key: the control, or the choices of a group.
QWidgetList TabStops(QWidget* control)
{
    if (control->focusPolicy() != Qt::NoFocus) return {control};
    QWidgetList stops;
    for (QAbstractButton* choice : control->findChildren<QAbstractButton*>())
        stops.append(choice);
    return stops;
}

} // namespace

DesktopWindow::Shell::Shell(DesktopWindow& owner, const WindowStyle& style)
    : QWidget(nullptr, FlagsOf(style))
    , content(new QWidget(this))
    , statusBar(style.hasStatusBar ? new StatusBar(this) : nullptr)
    , owner_(owner)
    , menuBar_(style.hasMenuBar ? DesktopApplication::MakeMenuBar(owner, this) : nullptr)
{
    QAccessible::installFactory(&Announce);
    setWindowTitle(ToQt(style.title) + QStringLiteral("[*]"));
    if (style.movableModal) setWindowModality(Qt::ApplicationModal);
    SetControlFont(*content);
    content->setMinimumSize(style.resizable ? QSize(style.minimumWidth, style.minimumHeight)
                                            : QSize(style.width, style.height));
    content->setMaximumSize(style.resizable ? QSize(style.maximumWidth, style.maximumHeight)
                                            : QSize(style.width, style.height));
    content->installEventFilter(this);
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, this, [this] {
        if (owner_.FindRequested && owner_.TakesInput()) owner_.FindRequested();
    });

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->setSizeConstraint(QLayout::SetMinAndMaxSize);
    layout->setMenuBar(menuBar_);
    layout->addWidget(content);
    if (statusBar) {
        // Without a limit of its own it would let the user widen a window that has one.
        statusBar->setMaximumWidth(content->maximumWidth());
        statusBar->setSizeGripEnabled(style.resizable);
        layout->addWidget(statusBar);
    }
    resize(style.width, style.height + MenuHeight() + StatusHeight());
}

QAccessibleInterface* DesktopWindow::Shell::Announce(const QString& /*className*/, QObject* object)
{
    auto* const shell = dynamic_cast<Shell*>(object);
    return shell ? new QAccessibleWidget(shell, shell->isModal() ? QAccessible::Dialog : QAccessible::Window) : nullptr;
}

int DesktopWindow::Shell::MenuHeight() const { return menuBar_ ? menuBar_->heightForWidth(width()) : 0; }

void DesktopWindow::Shell::ResizeContent(int width, int height)
{
    const QSize size = QSize(width, height).expandedTo(content->minimumSize()).boundedTo(content->maximumSize());
    // Qt tells a hidden window's widgets of their size only when it is shown.
    owner_.ContentResized(size.width(), size.height());
    resize(size.width(), size.height() + MenuHeight() + StatusHeight());
}

void DesktopWindow::Shell::MoveContent(int left, int top)
{
    // Not move(), which places the frame.
    placeLastSet_ = {left, top};
    const QPoint corner = MainScreen() + QPoint(left, top - MenuHeight());
    setGeometry(QRect(corner, size()));
}

WindowPlace DesktopWindow::Shell::Place(bool restored) const
{
    const bool isElsewhere = restored && (isMaximized() || isFullScreen());
    const QRect now = isElsewhere ? normalGeometry() : geometry();
    const bool isTold = !QGuiApplication::platformName().startsWith(QStringLiteral("wayland"));
    const QPoint corner = isTold ? now.topLeft() + QPoint(0, MenuHeight()) - MainScreen() : placeLastSet_;
    if (!isElsewhere) return {corner.x(), corner.y(), owner_.width_, owner_.height_};
    return {corner.x(), corner.y(), now.width(), now.height() - (height() - content->height())};
}

void DesktopWindow::Shell::HandKeyboardOn() const
{
    QWidget* const dialog = isBlocked ? QApplication::activeModalWidget() : nullptr;
    if (dialog) dialog->activateWindow(); // the platform's own is no widget
}

bool DesktopWindow::Shell::event(QEvent* event)
{
    const bool handled = QWidget::event(event);
    if (event->type() == QEvent::WindowBlocked || event->type() == QEvent::WindowUnblocked)
        isBlocked = event->type() == QEvent::WindowBlocked;
    // Some window managers show their buttons all the same; minimised, a dialog takes the window below it along.
    if (event->type() == QEvent::WindowStateChange && isMinimized() &&
        !windowFlags().testFlag(Qt::WindowMinimizeButtonHint))
        setWindowState(windowState() & ~Qt::WindowMinimized);
    if (event->type() != QEvent::WindowActivate) return handled;
    if (statusBar) lastWithStatus_ = &owner_;
    if (owner_.Activated) owner_.Activated();
    // The platform activates a window for a press on it, even for one that came just before the dialog was seen.
    HandKeyboardOn();
    return handled;
}

bool DesktopWindow::Shell::eventFilter(QObject* object, QEvent* event)
{
    if (object == content && event->type() == QEvent::Resize)
        owner_.ContentResized(content->width(), content->height());
    return QWidget::eventFilter(object, event);
}

void DesktopWindow::Shell::closeEvent(QCloseEvent* event)
{
    owner_.Close();
    event->setAccepted(isHidden());
}

DesktopWindow::DesktopWindow(const WindowStyle& style)
    : width_(style.width)
    , height_(style.height)
    , shell_(std::make_unique<Shell>(*this, style))
{
    all_.push_back(this);
}

DesktopWindow::~DesktopWindow() { std::erase(all_, this); }

DesktopWindow* DesktopWindow::Front()
{
    const auto active =
        std::ranges::find_if(All(), [](const auto* window) { return window->shell_->isActiveWindow(); });
    if (active != All().end()) return *active;
    const auto visible = std::ranges::find_if(All(), &DesktopWindow::Visible);
    return visible != All().end() ? *visible : nullptr;
}

String DesktopWindow::Title() const { return FromQt(shell_->windowTitle().remove(QStringLiteral("[*]"))); }

void DesktopWindow::SetModified(bool modified) { shell_->setWindowModified(modified); }

int DesktopWindow::MinimumWidth() const { return shell_->content->minimumWidth(); }

int DesktopWindow::MinimumHeight() const { return shell_->content->minimumHeight(); }

int DesktopWindow::Left() const { return shell_->Place(false).left; }

int DesktopWindow::Top() const { return shell_->Place(false).top; }

WindowPlace DesktopWindow::RestoredPlace() const { return shell_->Place(true); }

void DesktopWindow::SetLeft(int points) { shell_->MoveContent(points, Top()); }

void DesktopWindow::SetTop(int points) { shell_->MoveContent(Left(), points); }

void DesktopWindow::SetWidth(int points) { shell_->ResizeContent(points, height_); }

void DesktopWindow::SetHeight(int points) { shell_->ResizeContent(width_, points); }

int DesktopWindow::StatusHeight() const { return shell_->StatusHeight(); }

void DesktopWindow::SetStatus(StringView status)
{
    if (shell_->statusBar) shell_->statusBar->SetStatus(ToQt(status));
}

void DesktopWindow::Say(StringView sentence)
{
    if (Probe* const probe = Probe::Current()) probe->Said.emplace_back(sentence);
    DesktopWindow* where = nullptr;
    for (DesktopWindow* const window : All())
        if (window->shell_->statusBar && window->Visible() && (!where || window == lastWithStatus_)) where = window;
    if (where) where->shell_->statusBar->Say(ToQt(sentence));
}

void DesktopWindow::SayUnseen(StringView words)
{
    if (shell_->statusBar) shell_->statusBar->SayUnseen(ToQt(words));
}

bool DesktopWindow::Visible() const { return shell_->isVisible(); }

bool DesktopWindow::Active() const { return shell_->isActiveWindow(); }

void DesktopWindow::Show()
{
    const bool opens = !std::exchange(opened_, true);
    if (opens && Opening) Opening();
    if (!opened_) return;
    if (opens && shell_->isModal()) shell_->StandAbove(Front());
    shell_->setWindowState(shell_->windowState() & ~Qt::WindowMinimized);
    shell_->show();
    if (opens) ApplyTabOrder();
    shell_->raise();
    shell_->activateWindow();
    // Not every desktop hands the keyboard on to the dialog that blocks the window.
    shell_->HandKeyboardOn();
}

void DesktopWindow::Close()
{
    // Asked to close while it opens, a window is never seen, even if the close itself is put off.
    if (!Visible()) opened_ = false;
    if (CancelClosing && CancelClosing(false)) return;
    opened_ = false;
    shell_->hide();
    if (shell_->isModal()) StrayKeys::DialogHasEnded();
    DesktopApplication::WindowClosed();
}

DesktopUIControl* DesktopWindow::Focus() const
{
    for (const QWidget* widget = shell_->focusWidget(); widget; widget = widget->parentWidget()) {
        const auto control = std::ranges::find(controls_, widget, &DesktopUIControl::widget_);
        if (control != controls_.end()) return *control;
    }
    return nullptr;
}

void DesktopWindow::SetFocus() { shell_->content->setFocus(); }

void DesktopWindow::BlockKeyboard(bool blocked)
{
    if (std::exchange(shell_->keyboardIsBlocked, blocked) == blocked) return;
    if (blocked) {
        shell_->focusBefore = shell_->focusWidget();
        SetFocus();
    } else if (shell_->focusBefore)
        shell_->focusBefore->setFocus();
}

bool DesktopWindow::TakesInput() const
{
    return !shell_->isBlocked && !shell_->keyboardIsBlocked && DesktopApplication::yields_ == 0;
}

QWidget* DesktopWindow::Content() const { return shell_->content; }

void DesktopWindow::Add(DesktopUIControl& control) { controls_.push_back(&control); }

void DesktopWindow::Remove(DesktopUIControl& control) { std::erase(controls_, &control); }

void DesktopWindow::ApplyTabOrder()
{
    std::vector<DesktopUIControl*> ordered = controls_;
    std::ranges::stable_sort(ordered, {}, &DesktopUIControl::TabIndex);
    // The content, which has the focus when no control has it, comes first; Qt orders only what the focus can reach.
    QWidget* last = Content();
    last->setFocusPolicy(Qt::TabFocus);
    for (const DesktopUIControl* control : ordered)
        for (QWidget* stop : TabStops(control->widget_)) {
            QWidget::setTabOrder(last, stop);
            last = stop;
        }
    Content()->setFocusPolicy(Qt::NoFocus);
}

void DesktopWindow::ContentResized(int width, int height)
{
    const int moreWidth = width - width_, moreHeight = height - height_;
    width_ = width;
    height_ = height;
    if (moreWidth == 0 && moreHeight == 0) return;
    for (DesktopUIControl* control : controls_)
        control->Follow(moreWidth, moreHeight);
}
