#pragma once

#include <functional>
#include <string>

#include "base/captions.h"
#include "base/data_files.h"
#include "base/shared_values.h"
#include "forms/user_interface.h"
#include "selection/selection_shared.h"

namespace zandrell {

// What the selection window works on. All of it outlives the window.
struct SelectionContext {
    DataFiles& files;
    SharedValues& shared;
    const Captions& captions;
    UserInterface& user;
    SelectionShared& selection;
};

// What the window asks of the program around it. Functions that are empty do nothing.
struct SelectionHost {
    // Shows what the form holds while a long fill runs.
    std::function<void()> show_progress;
    // The print setup over the window, then the data sheet.
    std::function<void()> open_print_setup;
    // The documents that "zdview.dat" names, in the help box.
    std::function<void()> open_documents;
    // The day in the style of the settings, for the data sheet.
    std::function<std::string()> date_text;
};

}  // namespace zandrell
