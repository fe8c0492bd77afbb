#pragma once

#include <QMenuBar>
#include <QStringList>

#include "desktop/form_mirror.h"
#include "shell/main_form.h"

namespace zandrell {

// Fills a menu bar with the menus of the main window, tied to their entries.
void FillMenus(const MainForm& form, FormMirror& mirror, QMenuBar& bar);

// The texts of one menu with an access key ("&") each that no other of them has: the one that a
// text brings where it is free, else the first letter of a word or any letter that is. Texts for
// which no letter is left go without.
QStringList WithOwnAccessKeys(const QStringList& texts);

}  // namespace zandrell
