#include "toolkit/DesktopMenu.h"

#include "toolkit/DesktopApplication.h"
#include "toolkit/EditCommands.h"
#include "toolkit/core/QtText.h"

#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QShortcut>
#include <algorithm>
#include <utility>

DesktopMenuItem::DesktopMenuItem(String name, String text, String shortcut, EditCommand edit)
    : Name(std::move(name))
    , Text(std::move(text))
    , Shortcut(std::move(shortcut))
    , Edit(edit)
{
}

namespace {

QList<QKeySequence> KeysOf(StringView shortcut)
{
    QString keys = ToQt(shortcut);
    keys.replace(QStringLiteral("Cmd+Cmd"), QStringLiteral("Cmd"));
    keys.replace(QStringLiteral("Cmd"), QStringLiteral("Ctrl"))
        .replace(QStringLiteral("Option"), QStringLiteral("Alt"));
    return QKeySequence::listFromString(keys);
}

/// Marks in each text that has no mark yet the first letter that no other one has for its key.
void MarkKeys(const QList<QAction*>& actions)
{
    QString taken;
    for (const QAction* const action : actions)
        if (const qsizetype mark = action->text().indexOf(u'&'); mark >= 0)
            taken += action->text().mid(mark + 1, 1).toLower();
    for (QAction* const action : actions) {
        QString text = action->text();
        if (text.contains(u'&')) continue;
        const auto isFree = [&](QChar letter) { return letter >= u'a' && letter <= u'z' && !taken.contains(letter); };
        const QString letters = text.toLower();
        const qsizetype at = std::ranges::find_if(letters, isFree) - letters.begin();
        if (at == letters.size()) continue;
        taken += letters[at];
        action->setText(text.insert(at, u'&'));
    }
}

QAction::MenuRole RoleOf(const DesktopMenuItem& item)
{
    if (dynamic_cast<const DesktopQuitMenuItem*>(&item)) return QAction::QuitRole;
    if (dynamic_cast<const DesktopPreferencesMenuItem*>(&item)) return QAction::PreferencesRole;
    return QAction::NoRole;
}

class MenuBarWidget final : public QMenuBar {
public:
    MenuBarWidget(DesktopApplication& application, const DesktopMenuBar& menus, const DesktopWindow& window,
                  QWidget* parent)
        : QMenuBar(parent)
        , application_(application)
        , window_(window)
    {
        for (const DesktopMenu& menu : menus)
            AddMenu(menu);
        MarkKeys(actions());
        connect(new QShortcut(Qt::Key_F10, parent), &QShortcut::activated, this,
                [this] { setActiveAction(actions().front()); });
        connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { FollowFocus(now); });
    }

private:
    void AddMenu(const DesktopMenu& menu)
    {
        QMenu* list = addMenu(ToQt(menu.text));
        list->setObjectName(ToQt(menu.name));
        for (DesktopMenuItem* item : menu.items)
            AddItem(*list, *item);
        MarkKeys(list->actions());
        connect(list, &QMenu::aboutToShow, this, [this, list, items = menu.items] {
            Validate();
            for (qsizetype i = 0; i < list->actions().size(); ++i)
                list->actions()[i]->setEnabled(Usable(*items[static_cast<std::size_t>(i)]));
        });
        // A disabled action would keep its shortcut from asking whether the item has become usable meanwhile.
        connect(list, &QMenu::aboutToHide, this, [list] {
            for (QAction* action : list->actions())
                action->setEnabled(true);
        });
    }

    void AddItem(QMenu& list, DesktopMenuItem& item)
    {
        if (item.Text == U"-") {
            list.addSeparator();
            return;
        }
        QAction* action = list.addAction(ToQt(item.Text));
        action->setObjectName(ToQt(item.Name));
        action->setShortcuts(KeysOf(item.Shortcut));
        action->setMenuRole(RoleOf(item));
        action->setAutoRepeat(item.Edit != EditCommand::None || dynamic_cast<DesktopRepeatingMenuItem*>(&item));
        connect(action, &QAction::triggered, this, [this, &item] { Trigger(item); });
    }

    void Validate() const
    {
        if (application_.MenuBarSelected) application_.MenuBarSelected();
    }

    [[nodiscard]] bool Usable(const DesktopMenuItem& item) const
    {
        return window_.TakesInput() && item.Enabled &&
               (item.Edit == EditCommand::None || CanEdit(item.Edit, textControl_));
    }

    void Trigger(DesktopMenuItem& item)
    {
        Validate();
        if (!Usable(item)) return;
        if (item.Edit != EditCommand::None) return ::Edit(item.Edit, textControl_);
        if (item.Action) return item.Action();
        if (dynamic_cast<DesktopQuitMenuItem*>(&item)) application_.Quit(0);
    }

    /// The menus take the focus while they are used from the keyboard, but act on the control that had it.
    void FollowFocus(QWidget* now)
    {
        if (!now || qobject_cast<QMenuBar*>(now) || qobject_cast<QMenu*>(now)) return;
        textControl_ = now->window() == window() && IsTextControl(now) ? now : nullptr;
    }

    DesktopApplication& application_;
    const DesktopWindow& window_;
    QPointer<QWidget> textControl_;
};

} // namespace

QMenuBar* DesktopApplication::MakeMenuBar(const DesktopWindow& window, QWidget* parent)
{
    if (!current_ || current_->menuBar_.empty()) return nullptr;
    return new MenuBarWidget(*current_, current_->menuBar_, window, parent);
}
