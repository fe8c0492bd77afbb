#pragma once

#include <QDialog>

#include "desktop/form_mirror.h"
#include "forms/window_form.h"

namespace zandrell {

// A window that its opener waits for. It closes when its form says so; its frame and the Escape key
// stand for the form's cancel control, Return for its default control.
class ModalWindow : public QDialog {
  public:
    // Both outlive the window.
    ModalWindow(ModalForm& form, Pictures& pictures, QWidget* parent);

    // Blocks until the form is closed.
    void Run();
    // Comes back at once; the window stands in front of its parent until the form is closed.
    void StandBeside();

    std::function<void()> on_help;  // the key F1

    // Writes what differs, and closes when the form is closed.
    void Refresh();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    // Behind each comparison with the form.
    virtual void Refreshed() {}

    ModalForm& form_;
    FormMirror mirror_;
};

}  // namespace zandrell
