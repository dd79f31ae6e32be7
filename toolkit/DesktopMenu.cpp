#include "toolkit/DesktopMenu.h"

#include "toolkit/EditCommands.h"
#include "toolkit/MenuBar.h"
#include "toolkit/core/QtText.h"

#include <QApplication>
#include <QMenu>
#include <utility>

DesktopMenuItem::DesktopMenuItem(String name, String text, String shortcut, EditCommand edit)
    : Name(std::move(name))
    , Text(std::move(text))
    , Shortcut(std::move(shortcut))
    , Edit(edit)
{
}

DesktopMenuItem::~DesktopMenuItem() = default;

namespace {

QKeySequence KeysOf(StringView shortcut)
{
    QString keys;
    for (StringView part : Split(shortcut, U"+")) {
        QString key = SameText(part, U"Cmd")      ? QStringLiteral("Ctrl")
                      : SameText(part, U"Option") ? QStringLiteral("Alt")
                                                  : ToQt(part);
        key += u'+';
        if (!keys.contains(key)) keys += key;
    }
    keys.chop(1);
    return QKeySequence(keys, QKeySequence::PortableText);
}

QAction::MenuRole RoleOf(const DesktopMenuItem& item)
{
    if (dynamic_cast<const DesktopQuitMenuItem*>(&item)) return QAction::QuitRole;
    if (dynamic_cast<const DesktopPreferencesMenuItem*>(&item)) return QAction::PreferencesRole;
    return QAction::NoRole;
}

class MenuBarWidget final : public QMenuBar {
public:
    MenuBarWidget(QWidget* window, const DesktopMenuBar& menus, const MenuServices& services)
        : QMenuBar(window)
        , services_(services)
    {
        for (const DesktopMenu& menu : menus)
            AddMenu(menu);
        connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { FollowFocus(now); });
    }

private:
    void AddMenu(const DesktopMenu& menu)
    {
        QMenu* list = addMenu(ToQt(menu.text));
        list->setObjectName(ToQt(menu.name));
        for (DesktopMenuItem* item : menu.items)
            AddItem(*list, *item);
        connect(list, &QMenu::aboutToShow, this, [this, list, items = menu.items] {
            services_.validate();
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
        action->setShortcut(KeysOf(item.Shortcut));
        action->setMenuRole(RoleOf(item));
        connect(action, &QAction::triggered, this, [this, &item] { Trigger(item); });
    }

    [[nodiscard]] bool Usable(const DesktopMenuItem& item) const
    {
        return services_.takesInput() && item.Enabled &&
               (item.Edit == EditCommand::None || CanEdit(item.Edit, textControl_));
    }

    void Trigger(DesktopMenuItem& item)
    {
        services_.validate();
        if (!Usable(item)) return;
        if (item.Edit != EditCommand::None) return ::Edit(item.Edit, textControl_);
        if (item.Action) return item.Action();
        if (dynamic_cast<DesktopQuitMenuItem*>(&item)) services_.quit();
    }

    /// The menus take the focus while they are used from the keyboard, but act on the control that had it.
    void FollowFocus(QWidget* now)
    {
        if (!now || qobject_cast<QMenuBar*>(now) || qobject_cast<QMenu*>(now)) return;
        textControl_ = now->window() == window() && IsTextControl(now) ? now : nullptr;
    }

    const MenuServices services_;
    QPointer<QWidget> textControl_;
};

} // namespace

QMenuBar* MakeMenuBar(QWidget* window, const DesktopMenuBar& menus, const MenuServices& services)
{
    return new MenuBarWidget(window, menus, services);
}
