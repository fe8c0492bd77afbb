#pragma once

#include "shell/selection_stage.h"
#include "shell/session.h"
#include "support/catalogue_files.h"

namespace zandrell {

// On a selection window. The folder has settings and words, and no catalogues but those that a test
// writes.
class SelectionSession : public Session {
  public:
    SelectionSession() {
        for (const char* name : {"kparam.dat", "Caption.ENG", "AirCoCap.ENG", "QVCapt.ENG"}) {
            folder.CopyStaged(name);
        }
    }

  protected:
    bool Perform(ScriptedUser& user, DataFiles& files) override {
        SelectionDesk desk(user, files, NamedFolder(folder.Path()));
        SelectionStage stage(desk);
        return user.Run(stage, error, [&] { desk.Load(); });
    }
};

}  // namespace zandrell
