#pragma once

#include "desktop/modal_window.h"
#include "projects/project_dialog.h"

namespace zandrell {

// The window of the project dialog: the folders at the left, the files in the middle, what the
// chosen one holds at the right.
class ProjectWindow : public ModalWindow {
  public:
    // All of it outlives the window.
    ProjectWindow(ProjectDialog& form, Pictures& pictures, QWidget* parent);

  protected:
    void Refreshed() override;

  private:
    QLayout* MakeFolderPath();
    QLayout* MakeNewFolder();
    QWidget* MakeFolders();
    QWidget* MakeFiles();
    QWidget* MakePreview();
    QLayout* MakeName();

    ProjectDialog& dialog_;
    QLineEdit* path_ = nullptr;
    QLineEdit* name_ = nullptr;
    QListWidget* files_ = nullptr;
    bool asks_for_folder_ = false;
};

}  // namespace zandrell
