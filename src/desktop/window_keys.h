#pragma once

#include <QObject>
#include <QPoint>
#include <QWidget>
#include <functional>

namespace zandrell {

// Keys of a window that act wherever its focus is: fields and bars would take some of them for
// themselves.
class WindowKeys : public QObject {
  public:
    // `window` outlives the keys.
    explicit WindowKeys(QWidget& window);

    // Each says whether it used the key.
    std::function<bool()> on_escape;
    std::function<bool(QPoint direction)> on_control_arrow;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QWidget& window_;
};

}  // namespace zandrell
