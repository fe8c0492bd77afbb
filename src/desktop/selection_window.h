#pragma once

#include <QElapsedTimer>
#include <QLabel>
#include <QProgressBar>
#include <QSplitter>
#include <QWidget>

#include "desktop/form_mirror.h"
#include "desktop/grid_view.h"
#include "desktop/pictures.h"
#include "desktop/qt_user.h"
#include "selection/planner_form.h"
#include "shell/selection_desk.h"

namespace zandrell {

// The window of the selection program: the duty at the left, the lists in the middle, the unit in
// hand at the right.
class SelectionWindow : public QWidget {
  public:
    // All of it outlives the window.
    SelectionWindow(SelectionDesk& desk, PlannerForm& planner, QtUser& user);

    // Mirrors both forms and answers what the selection window asked for.
    void Refresh();
    // Runs when the selection was left for good.
    std::function<void(SelectionEnd)> on_end;
    // The focus where the work starts.
    void TakeFocus();
    // A list is being filled: events run, and nothing may act on the forms.
    bool IsFilling() const { return filling_; }

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void BindPlanner();
    QWidget* MakeLists();
    QWidget* MakeSearch();
    QWidget* MakeUnits();
    QWidget* MakeFoot();
    void AddWriters();
    void PlaceOverlays();
    void ShowProgress();
    void MirrorProgress();

    SelectionDesk& desk_;
    PlannerForm& planner_;
    QtUser& user_;
    Pictures pictures_;
    FormMirror mirror_, planner_mirror_;
    QSplitter* splitter_ = nullptr;
    QWidget* unit_panel_ = nullptr;
    GridView* series_ = nullptr;
    GridView* units_ = nullptr;
    QLineEdit* cell_box_ = nullptr;
    QLabel* preview_ = nullptr;
    QLabel* tip_ = nullptr;
    QProgressBar* progress_ = nullptr;
    QWidget* first_field_ = nullptr;
    QElapsedTimer since_progress_;
    bool filling_ = false;
};

}  // namespace zandrell
