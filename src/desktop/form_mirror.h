#pragma once

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QWidget>
#include <functional>
#include <string_view>
#include <vector>

#include "desktop/pictures.h"
#include "forms/choice_list.h"
#include "forms/window_form.h"

namespace zandrell {

// What chooses in a list: the row that is reached by pointer or keys, or only a double click or the
// Return key on it.
enum class ListChoice { Row, Activation };

// Ties the widgets of a window to the controls of its form. What a user does to a widget becomes an
// act of the form; after each act the whole form is compared with the widgets and only differences
// are written. Widgets are bound to signals that the program itself never fires, so nothing echoes.
class FormMirror {
  public:
    // Both outlive the mirror.
    FormMirror(WindowForm& window, Pictures& pictures) : window_(window), pictures_(pictures) {}
    FormMirror(const FormMirror&) = delete;
    FormMirror& operator=(const FormMirror&) = delete;

    WindowForm& Window() { return window_; }
    Pictures& PictureStore() { return pictures_; }

    // Runs after each act, behind the comparison: for what a window shows beside its widgets.
    std::function<void()> after_act;

    void Bind(QLabel* label, const Control& control);
    void Bind(QLineEdit* field, const TextField& control);
    void Bind(QPlainTextEdit* text, const TextField& control);
    void Bind(QSlider* bar, const ScrollBar& control);
    void Bind(QRadioButton* option, const OptionButton& control);
    void Bind(QCheckBox* box, const CheckBox& control);
    void Bind(QComboBox* box, const ComboBox& control);
    void Bind(QListWidget* list, const ListBox& control, ListChoice choice = ListChoice::Row);
    // Not their texts: the texts of one menu depend on each other.
    void Bind(QAction* action, const MenuEntry& control);
    void Bind(QMenu* menu, const MenuEntry& control);
    // A picture button with its caption, if any; a click does what a click on either does.
    void Bind(QPushButton* button, const Button& picture, const Control* caption = nullptr);
    // Where the button has a property "key", the key's name stands behind the tool tip.
    // Visibility and the like only.
    void BindPanel(QWidget* panel, const Control& control);

    // Takes only the colours and the font of a caption.
    void Follow(QWidget* widget, const Control& caption);

    // Whether a skin puts pictures behind the controls: pictures then stand on plates of their own.
    bool skinned = false;
    // What the style sheet asks for: which texts the skin wants, empty without a skin.
    QString SkinTexts() const;

    // The accessible name of a widget is what its caption says, with `addition` behind it, and its
    // property "unit" the unit that one of the two has in brackets.
    void Describe(QWidget* widget, const Control& caption, const QString& addition = {});

    // Performs an act of a user and mirrors what came of it.
    void Perform(const std::function<void()>& act);
    void Click(std::string_view control);
    // Writes what differs.
    void Mirror();
    // Runs whenever the form is compared, for what is shown of it otherwise than control by
    // control.
    void AddWriter(std::function<void()> writer);
    // Before the widgets are made anew.
    void Forget() { writers_.clear(); }

  private:
    using Writer = std::function<void()>;

    void AddColours(QWidget* widget, const Control& control);
    void AddCommon(QWidget* widget, const Control& control);
    void MirrorFont(QWidget* widget);
    void BindRows(QListWidget* list, const ListBox& control, const std::function<void()>& select);

    WindowForm& window_;
    Pictures& pictures_;
    std::vector<Writer> writers_;
};

// A caption or figure as a window shows it, without the blanks and line ends around it.
QString ShownText(const std::string& text);

}  // namespace zandrell
