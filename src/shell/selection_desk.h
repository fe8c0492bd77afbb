#pragma once

#include <string>
#include <vector>

#include "help/help_form.h"
#include "printing/print_setup_form.h"
#include "selection/vent_zeig_form.h"
#include "shell/start_up.h"

namespace zandrell {

// The selection window with what it needs of the program: settings, captions, print setup, help,
// and the page of the data sheet. Who opens the window is not its affair.
class SelectionDesk {
  public:
    // `user` and `files` outlive the desk; `named` is the data folder that the user named, if any.
    SelectionDesk(UserInterface& user, DataFiles& files, NamedFolder named);

    SharedValues shared;
    Captions captions;
    SelectionShared selection;

  private:
    Panel Picture_p_{"Picture_p", ControlKind::Picture};  // the logo of the page header

  public:
    VentZeigForm window;
    PrintSetupForm setup;
    HelpForm help;

    // Settings and captions, as the program reads them at its start.
    void Load();
    // Where pages go to; null: nowhere, and a print-out says so.
    void SetDevice(PrintDevice* device);
    bool PrintToFile(const std::string& path);
    // The data sheet as it stands in the data folder, as a page.
    Sheet ComposeSheet();
    void OpenHelp();

    std::vector<ModalForm*> Windows() { return {&setup, &help}; }
    DataFiles& Files() { return files_; }
    UserInterface& User() { return user_; }

  private:
    void PrintSheet();

    UserInterface& user_;
    DataFiles& files_;
    NamedFolder named_folder_;
    PrintDevice* device_ = nullptr;
};

}  // namespace zandrell
