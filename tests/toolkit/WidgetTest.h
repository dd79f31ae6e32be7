/// What the tests of windows share: the one application object, and a way from a control's name to its Qt widget.
#pragma once

#include "tests/toolkit/TestMenus.h"

#include <QApplication>
#include <QTest>
#include <QWidget>
#include <gtest/gtest.h>

/// The widget of the control that was named `name`; names are unique within a test.
template <class Widget>
Widget& Find(const char* name)
{
    for (QWidget* widget : QApplication::allWidgets())
        if (widget->objectName() == QLatin1String(name))
            if (auto* found = qobject_cast<Widget*>(widget)) return *found;
    throw std::runtime_error(std::string("no widget ") + name);
}

inline void ShowActive(DesktopWindow& window)
{
    window.Show();
    ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::activeWindow() != nullptr; }));
}
