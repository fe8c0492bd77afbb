#pragma once

#include <QBoxLayout>
#include <QGridLayout>
#include <QString>
#include <QWidget>

#include "desktop/form_mirror.h"
#include "desktop/look.h"

namespace zandrell {

// Makes the widgets of a panel in reading order, which is the order of the tab key, and ties each
// to its control.
class PanelBuilder {
  public:
    // Both outlive the builder.
    PanelBuilder(FormMirror& mirror, QWidget* parent) : mirror_(mirror), parent_(parent) {}

    // What is made from now on stands in another widget.
    void SetParent(QWidget* parent) { parent_ = parent; }

    QLabel* Caption(const Control& control, bool heading = false);
    // A part of a panel with a ground of its own, known to readers by `name`; what is made from
    // now on stands in it.
    QGridLayout* InnerGrid(const Panel& panel, const Control& name, int spacing);
    // Fixed signs, coloured like a caption.
    QLabel* Words(const QString& text, const Control& like);
    // `caption` names the field for who can not see the layout.
    QLineEdit* Field(const TextField& control, const Control& caption, const QString& addition = {},
                     int digits = 8);
    FigureLabel* Figure(const Label& control, const Control& caption, const QString& addition = {},
                        int digits = 8);
    QSlider* BarOf(const ScrollBar& control, const Control& caption, const QString& addition = {});
    QRadioButton* Option(const OptionButton& control);
    QPushButton* PictureButton(const Button& picture, const Control* caption = nullptr);
    // A small button of only a picture.
    QPushButton* QuietButton(const Button& picture);
    // The layout of the whole panel, begun with its title, the running tool and its closing cross,
    // which does what the button `cancel` does; `shadow` pixels all round are left free.
    QVBoxLayout* TitledLayout(const Label& title, const Label& tool, const Button& close,
                              const Button& cancel, int shadow);

  private:
    FormMirror& mirror_;
    QWidget* parent_;
};

// Floating panels are written a little smaller, to leave more of the chart to be seen.
void UsePanelFont(QWidget* panel);

}  // namespace zandrell
