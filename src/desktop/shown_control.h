#pragma once

#include <QString>
#include <QWidget>
#include <optional>

#include "forms/control.h"

namespace zandrell {

// What a widget shows of its control in colours.
struct ShownColours {
    std::optional<int> text, ground;
    bool stale = false, pending = false;
    bool operator==(const ShownColours&) const = default;
};

// A text that is refused shows it before all else; figures of other inputs and texts that are not
// confirmed keep their own colours.
ShownColours ColoursOf(const Control& control);

// White stands for the ground as designed, whatever the scheme makes of it.
void ApplyColours(QWidget* widget, const ShownColours& colours);

// The hint of the control, else its tool tip, in bounds and never read as markup; behind it the key
// that the widget's property "key" names.
QString TipOf(const QWidget* widget, const Control& control);

}  // namespace zandrell
