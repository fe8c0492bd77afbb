#pragma once

#include <functional>
#include <string>

#include "base/captions.h"
#include "base/data_files.h"
#include "forms/grid.h"
#include "forms/grid_order.h"
#include "forms/user_interface.h"
#include "forms/window_form.h"
#include "processes/state_list.h"

namespace zandrell {

// The window with the states of the process in force, which it follows while it is open. It can be
// sorted by each column, copied, and saved as comma-separated values.
class StateTableForm : public ModalForm {
  public:
    // All of it outlives the form.
    StateTableForm(const DataFiles& files, const Captions& captions, UserInterface& user);

    Grid States{"States"};
    Label Message{"StatesMessage"};  // what became of the last copy or save
    Button Copy{"CopyStates"}, Save{"SaveStates"}, Close{"CloseStates", "OKcap.bmp"};

    // Where there is a screen: hands a text to the clipboard, and asks for the name of a file
    // (empty: cancelled).
    std::function<void(const std::string&)> copy_text;
    std::function<std::string()> ask_file;
    // Where windows can stand side by side: shows this one and comes back at once. Without it the
    // opener waits until it is closed.
    std::function<void()> show_beside;

    // `process` is its name; empty: none is in force.
    void ShowStates(const StateList& list, const std::string& process);
    // Of an open table: the same process with other figures, or another one. The order that was
    // asked for and the chosen row stay.
    void Follow(const StateList& list, const std::string& process);

  private:
    void Fill(const StateList& list);
    void SaveCsv();
    void Sort();

    const DataFiles& files_;
    const Captions& captions_;
    UserInterface& user_;
    GridOrder order_;
    StateList shown_;
};

}  // namespace zandrell
