#include "forms/window_form.h"

#include <utility>

#include "forms/choice_list.h"
#include "forms/grid.h"

namespace zandrell {
namespace {

bool IsButton(const Control& control) {
    return control.kind == ControlKind::Button || control.kind == ControlKind::MenuEntry ||
           control.kind == ControlKind::Panel || control.kind == ControlKind::Picture;
}

bool TakesText(const Control& control) {
    return control.kind == ControlKind::TextField || control.kind == ControlKind::ComboBox;
}

bool TakesReturn(const Control& control) {
    return TakesText(control) || control.kind == ControlKind::List ||
           control.kind == ControlKind::Grid;
}

}  // namespace

bool WindowForm::Takes(const Control& control) const {
    return !inert && control.visible && control.enabled;
}

bool WindowForm::UserClick(std::string_view control_name) {
    Control* control = form.Find(control_name);
    if (control == nullptr || !IsButton(*control)) return false;
    if (!Takes(*control)) return true;
    auto* button = control->kind == ControlKind::Button ? static_cast<Button*>(control) : nullptr;
    if (button != nullptr) button->pressed = true;
    acts.Perform(control_name, ActKind::Press);
    if (button != nullptr) button->pressed = false;
    acts.Perform(control_name, ActKind::Release);
    acts.Perform(control_name, ActKind::Click);
    Done(control_name, ActKind::Click);
    return true;
}

bool WindowForm::UserReturn(std::string_view field) {
    Control* control = form.Find(field);
    if (control == nullptr || !TakesReturn(*control)) return false;
    if (!Takes(*control)) return true;
    acts.Perform(field, ActKind::Return);
    Done(field, ActKind::Return);
    return true;
}

bool WindowForm::UserSetText(std::string_view field, std::string_view text) {
    Control* control = form.Find(field);
    if (control == nullptr || !TakesText(*control)) return false;
    if (!Takes(*control)) return true;
    control->text = text;
    if (auto* list = AsChoiceList(control)) list->Choose(text);
    acts.Perform(field, ActKind::Change);
    Done(field, ActKind::Change);
    return true;
}

bool WindowForm::UserChoose(std::string_view option) {
    Control* control = form.Find(option);
    if (control == nullptr || control->kind != ControlKind::OptionButton) return false;
    if (!Takes(*control)) return true;
    acts.Perform(option, ActKind::Choose);
    Done(option, ActKind::Choose);
    return true;
}

bool WindowForm::UserCheck(std::string_view box, bool on) {
    Control* control = form.Find(box);
    if (control == nullptr || control->kind != ControlKind::CheckBox) return false;
    if (Takes(*control)) {
        static_cast<CheckBox*>(control)->on = on;
        acts.Perform(box, ActKind::Check);
        Done(box, ActKind::Check);
    }
    return true;
}

bool WindowForm::UserScroll(std::string_view bar, int position) {
    Control* control = form.Find(bar);
    if (control == nullptr || control->kind != ControlKind::ScrollBar) return false;
    if (!Takes(*control)) return true;
    static_cast<ScrollBar*>(control)->SetPosition(position);
    Done(bar, ActKind::Scroll);
    return true;
}

bool WindowForm::UserPick(std::string_view list, std::string_view item) {
    ChoiceList* choices = AsChoiceList(form.Find(list));
    if (choices == nullptr) return false;
    if (!Takes(*choices)) return true;
    if (!choices->Choose(item)) return false;
    acts.Perform(list, ActKind::Select);
    Done(list, ActKind::Select);
    return true;
}

bool WindowForm::UserSelect(std::string_view list, int index) {
    ChoiceList* choices = AsChoiceList(form.Find(list));
    if (choices == nullptr) return false;
    if (!Takes(*choices)) return true;
    if (!choices->Choose(index)) return false;
    acts.Perform(list, ActKind::Select);
    Done(list, ActKind::Select);
    return true;
}

bool WindowForm::UserDoubleClick(std::string_view list) {
    ChoiceList* choices = AsChoiceList(form.Find(list));
    if (choices == nullptr) return false;
    if (!Takes(*choices)) return true;
    acts.Perform(list, ActKind::DoubleClick);
    Done(list, ActKind::DoubleClick);
    return true;
}

bool WindowForm::UserPickCell(std::string_view grid_name, int row, int column) {
    Grid* grid = AsGrid(form.Find(grid_name));
    if (grid == nullptr) return false;
    if (row < 0 || row >= grid->RowCount() || column < 0 || column >= grid->ColumnCount()) {
        return false;
    }
    if (!Takes(*grid) || row == 0 || grid->IsEmptyRow(row)) return true;
    grid->row = row;
    grid->column = column;
    acts.Perform(grid_name, ActKind::Pick);
    Done(grid_name, ActKind::Pick);
    return true;
}

bool WindowForm::UserGridAct(std::string_view grid_name, ActKind act) {
    Grid* grid = AsGrid(form.Find(grid_name));
    if (grid == nullptr) return false;
    if (!Takes(*grid)) return true;
    acts.Perform(grid_name, act);
    Done(grid_name, act);
    return true;
}

bool WindowForm::UserHover(std::string_view grid_name, int row) {
    Grid* grid = AsGrid(form.Find(grid_name));
    if (grid == nullptr || row < 0 || row >= grid->RowCount()) return false;
    if (!Takes(*grid)) return true;
    const int before = std::exchange(grid->hovered_row, row);
    if (row != before) acts.Perform(grid_name, row == 0 ? ActKind::Leave : ActKind::Hover);
    return true;
}

bool WindowForm::UserSort(std::string_view grid_name, int column) {
    Grid* grid = AsGrid(form.Find(grid_name));
    if (grid == nullptr || column < 0 || column >= grid->ColumnCount()) return false;
    if (!Takes(*grid)) return true;
    grid->asked_column = column;
    acts.Perform(grid_name, ActKind::Sort);
    Done(grid_name, ActKind::Sort);
    return true;
}

}  // namespace zandrell
