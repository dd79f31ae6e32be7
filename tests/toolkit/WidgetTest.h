/// What the tests of windows share: the one application, and a way from a control to its Qt widget.
#pragma once

#include "tests/toolkit/TestMenus.h"
#include "toolkit/DesktopControls.h"
#include "toolkit/core/QtText.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

template <class Widget>
Widget& Find(const char* name)
{
    for (QWidget* widget : QApplication::allWidgets())
        if (widget->objectName() == QLatin1String(name))
            if (auto* found = qobject_cast<Widget*>(widget)) return *found;
    throw std::runtime_error(std::string("no widget ") + name);
}

template <class Widget = QWidget>
Widget& WidgetOf(DesktopUIControl& control)
{
    control.SetName(U"asked for");
    auto& widget = Find<Widget>("asked for");
    control.SetName({});
    return widget;
}

inline void ShowActive(DesktopWindow& window)
{
    window.Show();
    ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::activeWindow() != nullptr; }));
}

inline void PressByScreenReader(QAccessibleInterface* shown)
{
    shown->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
}
