#pragma once

#include <string>

#include "shell/form_dump.h"
#include "shell/session.h"

namespace zandrell {

// On a main form, over the whole data set.
class ScriptSession : public Session {
  public:
    // Without the sample working state, so that a script starts from empty fields.
    ScriptSession() {
        folder.CopyWholeSet();
        std::filesystem::remove(folder / "QV_ACT.dat");
    }

  protected:
    bool Perform(ScriptedUser& user, DataFiles& files) override {
        MainForm form(user, files, NamedFolder(folder.Path()));
        return user.Run(form, error);
    }
};

// What a dump says of one control, for comparisons in one line.
inline std::string TextOf(const Json& dump, const char* name) {
    return dump.at(name).at("text").get<std::string>();
}
inline bool Shown(const Json& dump, const char* name) {
    return dump.at(name).at("visible").get<bool>();
}

}  // namespace zandrell
