#pragma once

#include <QColor>
#include <QLabel>
#include <QLineEdit>

class QApplication;

namespace zandrell {

// The calm light look of the windows, for SkinNumber 0; skins put their pictures on top of it.
// `scale` enlarges texts and what is measured by them, for a large window on a screen that the
// system does not scale. Requires: called once, before there are windows.
void ApplyLook(QApplication& application, double scale = 1);

// The scale for a window of this size in device-independent pixels: 1 up to a usual screen, growing
// slower than the window from there on.
double ScaleFor(int width, int height);

// A length of the layouts, given in pixels at scale 1, for a widget of this font.
int Scaled(const QWidget& widget, int pixels);

// Headings stay bold in every skin.
void MakeBold(QWidget* widget);

// Colour of a text or ground that a form sets by its palette number.
QColor TextColour(int palette_number);
QColor GroundColour(int palette_number);

// A figure that is shown and not typed: a soft cell, its ground follows the palette's Base.
class FigureLabel : public QLabel {
  public:
    explicit FigureLabel(QWidget* parent = nullptr);

  protected:
    void paintEvent(QPaintEvent* event) override;
};

// A text field that wishes to be as wide as a number of digits.
class FigureField : public QLineEdit {
  public:
    FigureField(int digits, QWidget* parent);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  private:
    int digits_;
};

}  // namespace zandrell
