#pragma once

#include <QString>
#include <string>

#include "selection/planner_lists.h"

class QWidget;

namespace zandrell {

// The words of a dialog that only shows something.
struct DialogWords {
    QString title, back;  // of the button that closes it
};

// Both show a dialog over `parent` until it is closed.
void ShowComparison(const Grid& comparison, const DialogWords& words, QWidget* parent);
void ShowCapacityPlot(const CapacityPlot& plot, const DialogWords& words, QWidget* parent);

// Asks for the file of a list and proposes one; a name without an ending gets that of CSV. Empty:
// the user wants none. A file that is there is replaced only when he says so.
std::string AskForCsvFile(const QString& title, const std::string& proposal, QWidget* parent);

}  // namespace zandrell
