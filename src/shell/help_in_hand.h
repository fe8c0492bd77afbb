#pragma once

#include <string_view>

#include "help/help_topics.h"

namespace zandrell {

class MainForm;

// The topic of what the user is doing: that of the window `open`, a name as in scripts, or with the
// empty name that of the main form.
HelpTopic TopicInHand(const MainForm& main, std::string_view open);

}  // namespace zandrell
