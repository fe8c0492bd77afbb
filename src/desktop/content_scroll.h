#pragma once

#include <QScrollArea>

namespace zandrell {

// Holds content that wishes to be seen whole and is scrolled where the window leaves it no room.
class ContentScroll : public QScrollArea {
  public:
    ContentScroll(QWidget* content, QWidget* parent);

    // What the content wishes now. The layout around is told when that changes.
    void FollowContent();
    // As high as the room there is, and as wide as the content, with the bar where there is one.
    void FillHeight();
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {0, 0}; }
    // The width that the bar takes where the content is higher than the room for it.
    int BarWidth() const;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void HoldWidth();

    QSize wish_;
    bool fills_height_ = false;
};

}  // namespace zandrell
