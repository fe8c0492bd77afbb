#pragma once

#include "desktop/grid_view.h"
#include "desktop/modal_window.h"
#include "shell/state_table_form.h"

namespace zandrell {

// The table of the states of a process.
class StateTableWindow : public ModalWindow {
  public:
    // Both outlive the window.
    StateTableWindow(StateTableForm& form, Pictures& pictures, QWidget* parent);
    ~StateTableWindow() override;
    StateTableWindow(const StateTableWindow&) = delete;
    StateTableWindow& operator=(const StateTableWindow&) = delete;

  protected:
    void Refreshed() override;

  private:
    StateTableForm& table_;
    GridView* grid_;
};

// Asks for the name of a file that takes a table; ".csv" is added where it has no ending. Empty:
// cancelled.
std::string AskForCsv(QWidget* parent, const QString& title);

}  // namespace zandrell
