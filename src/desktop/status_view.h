#pragma once

#include <QLabel>
#include <QRegion>
#include <QTimer>
#include <functional>

#include "shell/status_line.h"

namespace zandrell {

// The status line over the foot of the chart, or elsewhere at its edge where a panel lies there:
// shown for some seconds and told to screen readers. The last sayings are the tool tip of the foot.
class StatusView : public QLabel {
  public:
    // Both outlive the view; `fade` is run when the text has stood long enough.
    StatusView(const StatusLine& status, QWidget* chart, std::function<void()> fade);

    // What lies over the chart and is not to be hidden, in its positions. Empty: nothing does.
    std::function<QRegion()> covered;

    // Shows what the form says.
    void Sync();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Place();
    QPoint FreePlace() const;

    const StatusLine& status_;
    QTimer fading_;
    int shown_count_ = 0;
};

}  // namespace zandrell
