#pragma once

#include "base/captions.h"
#include "base/data_files.h"
#include "base/shared_values.h"
#include "forms/user_interface.h"

namespace zandrell {

// What projects and working states work with. All of it outlives them.
struct ProjectContext {
    DataFiles& files;
    SharedValues& shared;
    Captions& captions;
    UserInterface& user;
};

}  // namespace zandrell
