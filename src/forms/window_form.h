#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "forms/act_table.h"
#include "forms/form.h"
#include "forms/scroll_bar.h"

namespace zandrell {

// A window without a toolkit: its controls, what can be done to them, and its title.
class WindowForm {
  public:
    explicit WindowForm(std::string_view window_name) : form(window_name) {}
    virtual ~WindowForm() = default;
    WindowForm(const WindowForm&) = delete;
    WindowForm& operator=(const WindowForm&) = delete;

    Form form;
    ActTable acts;
    std::string title;
    // How the labels and button captions are written; a skin changes it.
    bool bold_labels = false;
    int label_font_size = 10;  // points
    // A skin's picture behind everything, file in the data folder; empty: as designed.
    std::string ground_picture;

    bool inert = false;     // takes no more input: its program has ended
    bool modified = false;  // the work shown differs from its file; the title bar tells so

    // A bar that is dragged: the number of the drag; 0: none is.
    int drag = 0;
    void BeginDrag() { drag = ++drags_; }
    void EndDrag() { drag = 0; }

    // Runs behind each act below that a control took, with what it was.
    std::function<void(std::string_view control, ActKind kind)> after_act;

    // The acts of a user. Each returns false when there is no such control of that kind. A control
    // that is hidden or off takes no input: the act is passed over.
    bool UserClick(std::string_view control);
    bool UserReturn(std::string_view field);
    bool UserSetText(std::string_view field, std::string_view text);
    bool UserChoose(std::string_view option);
    bool UserCheck(std::string_view box, bool on);
    bool UserScroll(std::string_view bar, int position);
    // In a list, a combo box or a folder tree. False also when there is no such item.
    bool UserPick(std::string_view list, std::string_view item);
    bool UserSelect(std::string_view list, int index);
    bool UserDoubleClick(std::string_view list);
    // In a grid: press and release in a cell. False also when there is no such cell; the head row
    // and empty rows take the act and do nothing.
    bool UserPickCell(std::string_view grid, int row, int column);
    // Keys and the wheel; `act` is RowsUp, RowsDown or Tell.
    bool UserGridAct(std::string_view grid, ActKind act);
    // The pointer is over a row; 0: away from the grid.
    bool UserHover(std::string_view grid, int row);
    bool UserSort(std::string_view grid, int column);

  private:
    bool Takes(const Control& control) const;
    void Done(std::string_view control, ActKind kind) const {
        if (after_act) after_act(control, kind);
    }

    int drags_ = 0;
};

// A window that its opener waits for. It leaves by setting `closed`.
class ModalForm : public WindowForm {
  public:
    using WindowForm::WindowForm;
    bool closed = true;  // until its opener fills and shows it
    // What closing the window by its frame or the Escape key stands for: a click on this control.
    std::string_view cancel_control;
    std::string_view default_control;  // Return outside a field with an act of its own
};

}  // namespace zandrell
