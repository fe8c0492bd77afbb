#pragma once

#include <QTableView>
#include <QTimer>
#include <vector>

#include "desktop/form_mirror.h"
#include "desktop/grid_columns.h"
#include "desktop/grid_model.h"

namespace zandrell {

// Shows a grid of a form. A click in a cell, Return, the wheel, the plain arrow keys and the letter
// i become acts of the form; the arrow keys with Alt, Ctrl or Shift and the page keys move the
// chosen cell.
class GridView : public QTableView {
  public:
    // Both outlive the view.
    GridView(Grid& grid, FormMirror& mirror, QWidget* parent);

    // Whether a fill is running that lets events through; a preview waits for its end.
    std::function<bool()> is_filling;

    // Writes what differs.
    void MirrorGrid();
    // The place of a cell, in positions of the viewport.
    QRect CellRect(int row, int column) const;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool viewportEvent(QEvent* event) override;

  private:
    void MeasureColumns();
    void FitColumns();
    void FitHead();
    QString HeadText(int column) const;
    void TakeCurrent();
    void MoveCurrent(int by);
    void FollowScrolling();
    void ShowChoice();

    Grid& grid_;
    FormMirror& mirror_;
    GridModel model_;
    QTimer hover_;
    int pointed_row_ = 0;  // of the grid, until the pause is over
    int shown_top_ = 1;
    std::vector<ColumnWish> wishes_;
    bool follows_choice_ = false;  // since a fill, until the user moves the list
    int wheel_ = 0;                // eighths of a degree that made no step yet
};

}  // namespace zandrell
