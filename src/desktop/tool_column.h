#pragma once

#include <QWidget>

#include "desktop/form_mirror.h"
#include "shell/main_form.h"

namespace zandrell {

// The column at the right of the main window: tool buttons, the read-out under the pointer, the
// project's two texts and the buttons that end the program.
class ToolColumn : public QWidget {
  public:
    // Both outlive the column. It can be made for windows of little height.
    ToolColumn(MainForm& form, FormMirror& mirror, bool compact, QWidget* parent);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QWidget* MakeToolButtons();
    QWidget* MakeReadOut();
    QWidget* MakeProjectTexts();
    QWidget* MakeEndButtons();

    MainForm& form_;
    FormMirror& mirror_;
    bool compact_;
};

}  // namespace zandrell
