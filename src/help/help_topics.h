#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/captions.h"
#include "base/shared_values.h"

namespace zandrell {

// What the help of this program tells about.
enum class HelpTopic {
    Software,
    Settings,
    ChartAndReadOut,
    ProjectData,
    Component,
    SelectSeries,
    SetOfValues,
    AirTreatment
};

// Where the text of a topic stands: a run of records, counted from 1, in a file of the data folder
// whose name ends in the language tag.
struct HelpPlace {
    std::string_view file;  // without the tag
    int first = 0;
    int count = 0;
};

// The order of the list is the order in which topic texts are compared.
const std::vector<HelpTopic>& HelpTopics();

// The text by which a caller asks for a topic, in the language in force.
std::string TopicText(HelpTopic topic, const SharedValues& shared, const Captions& captions);

HelpPlace PlaceOf(HelpTopic topic);

// By exact text; a text that no topic has gives zero records.
HelpPlace FindTopic(std::string_view text, const SharedValues& shared, const Captions& captions);

}  // namespace zandrell
