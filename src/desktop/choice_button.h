#pragma once

#include <QPushButton>
#include <QString>

#include "desktop/form_mirror.h"
#include "forms/choice_list.h"

namespace zandrell {

// A flat button that opens the items of a choice as a menu, with a tick at the chosen one. It
// shows what the choice is for, which is its tool tip, and is known to readers by that with
// `addition` behind it. The choice outlives the button.
QPushButton* MakeChoiceButton(const ComboBox& choice, const QString& addition, FormMirror& mirror,
                              QWidget* parent);

}  // namespace zandrell
