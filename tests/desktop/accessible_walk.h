#pragma once

#include <gtest/gtest.h>

#include <QAccessible>
#include <QWidget>
#include <string>

#include "desktop/accessible.h"
#include "desktop/look.h"

namespace zandrell {

// What a screen reader finds in a window; what has no name or no value fails the test.
struct Found {
    int focusable = 0, figures = 0, bars = 0;
};

inline void Walk(QAccessibleInterface& item, Found& found) {
    const auto text = [&item](QAccessible::Text kind) { return item.text(kind).toStdString(); };
    const std::string name = text(QAccessible::Name);
    const std::string which = item.object() ? item.object()->objectName().toStdString() : name;
    const auto* widget = qobject_cast<QWidget*>(item.object());
    if (widget != nullptr && !widget->isVisible()) return;
    // A cell of a table may be empty.
    const bool cell = item.role() == QAccessible::Cell;
    if (item.state().focusable && item.role() != QAccessible::Window && !cell) {
        ++found.focusable;
        EXPECT_NE(name, "") << which;
    }
    if (const auto* figure = dynamic_cast<const FigureLabel*>(widget)) {
        const std::string shown = figure->text().toStdString();
        if (!shown.empty()) ++found.figures;
        EXPECT_NE(name, "") << which;
        EXPECT_NE(name, shown) << which << " is named by its value";
        EXPECT_EQ(text(QAccessible::Value).substr(0, shown.size()), shown) << which;
    }
    if (dynamic_cast<const Bar*>(widget) != nullptr) {
        ++found.bars;
        const std::string value = text(QAccessible::Value);
        EXPECT_TRUE(value.ends_with(" °C") || value.ends_with(" %") || value.ends_with(" Hz"))
            << which << ": " << value;
        EXPECT_NE(item.valueInterface(), nullptr) << which;
    }
    for (int i = 0; i < item.childCount(); ++i) {
        if (QAccessibleInterface* child = item.child(i)) Walk(*child, found);
    }
}

inline Found LookAt(QWidget& window) {
    Found found;
    QAccessibleInterface* root = QAccessible::queryAccessibleInterface(&window);
    EXPECT_NE(root, nullptr);
    if (root) Walk(*root, found);
    return found;
}

}  // namespace zandrell
