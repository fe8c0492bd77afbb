#pragma once

#include <QWidget>

#include "selection/vent_zeig_controls.h"

namespace zandrell {

// The scale of the efficiency classes with its mark where the form says it stands.
class ClassScale : public QWidget {
  public:
    // Both outlive the scale.
    ClassScale(const Panel& mark, const Label& name, QWidget* parent);
    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    const Panel& mark_;
    const Label& name_;
};

}  // namespace zandrell
