#pragma once

#include <QColor>
#include <QLabel>
#include <QLineEdit>

#include "desktop/look_colours.h"

class QApplication;

namespace zandrell {

// The calm look of the windows, for SkinNumber 0; skins put their pictures on top of it.
struct Look {
    // Enlarges texts and what is measured by them, for a large window on a screen that the system
    // does not scale.
    double scale = 1;
    LookScheme scheme = LookScheme::Light;
    bool operator==(const Look&) const = default;
};

// Windows that stand already take colours and fonts; what they measured by them they have to lay
// out again.
void ApplyLook(QApplication& application, const Look& look = {});

// The scale for a window of this size in device-independent pixels: 1 up to a usual screen, growing
// slower than the window from there on, in steps, so that a window that is dragged to another size
// is not laid out anew at every pixel.
double ScaleFor(int width, int height);

// A length of the layouts, given in pixels at scale 1, for a widget of this font.
int Scaled(const QWidget& widget, int pixels);

// Headings stay bold in every skin.
void MakeBold(QWidget* widget);

// Colour of a text or ground that a form sets by its palette number.
QColor TextColour(int palette_number);
QColor GroundColour(int palette_number);

// A figure that is shown and not typed: a soft cell, or the palette's Base where that is set.
class FigureLabel : public QLabel {
  public:
    explicit FigureLabel(QWidget* parent = nullptr);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QColor Ground() const;
};

// A text field that wishes to be as wide as a number of digits. It paints its ground itself, in the
// palette's Base: a style sheet asks the palette of the application, never that of the field.
class FigureField : public QLineEdit {
  public:
    FigureField(int digits, QWidget* parent);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    int digits_;
};

}  // namespace zandrell
