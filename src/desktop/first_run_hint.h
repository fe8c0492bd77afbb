#pragma once

#include <QLabel>

namespace zandrell {

// What can be done with the empty chart, told once: any key, press or turn of the wheel dismisses
// it for good.
class FirstRunHint : public QLabel {
  public:
    // Whether no user of this computer's account has seen it yet.
    static bool IsWanted();

    // `over` is what the hint floats over; it outlives the hint.
    FirstRunHint(const QString& text, QWidget* over);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Place();
};

}  // namespace zandrell
