#pragma once

#include "selection/planner_lists.h"

class QString;
class QWidget;

namespace zandrell {

// Both show a dialog over `parent` until it is closed.
void ShowComparison(const Grid& comparison, const QString& title, QWidget* parent);
void ShowCapacityPlot(const CapacityPlot& plot, const QString& title, QWidget* parent);

}  // namespace zandrell
