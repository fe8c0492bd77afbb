#pragma once

#include "base/data_files.h"
#include "base/shared_values.h"
#include "forms/user_interface.h"
#include "processes/process_panels.h"
#include "projects/working_state.h"

namespace zandrell {

// The inputs of the main window between runs: loaded once, saved on request and at the end, and
// never replaced unread.
class InputKeeper {
  public:
    // All of it outlives the keeper.
    InputKeeper(const DataFiles& files, const SharedValues& shared, UserInterface& user,
                ProcessPanels& processes)
        : files_(files), shared_(shared), user_(user), processes_(processes) {}

    // Once a run: a later activation must not throw away what was typed meanwhile.
    void LoadAtStart();
    void Load();
    // False when nothing was saved; the user has been told why.
    bool Save();
    // The same at the end of the program, where a file that could not be read is left alone.
    bool SaveAtEnd();

  private:
    WorkingStateFields Fields();
    bool TellUnsaved(const std::string& what, const std::string& reason);

    const DataFiles& files_;
    const SharedValues& shared_;
    UserInterface& user_;
    ProcessPanels& processes_;
    bool loaded_ = false;
    bool unread_ = false;  // a file is there that could not be read
};

}  // namespace zandrell
