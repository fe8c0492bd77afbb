#include "help/help_topics.h"

namespace zandrell {
namespace {

constexpr std::string_view kOwnFile = "Zandhelp.";

}  // namespace

const std::vector<HelpTopic>& HelpTopics() {
    static const std::vector<HelpTopic> topics = {
        HelpTopic::Software,    HelpTopic::Settings,    HelpTopic::ChartAndReadOut,
        HelpTopic::ProjectData, HelpTopic::Component,   HelpTopic::SelectSeries,
        HelpTopic::SetOfValues, HelpTopic::AirTreatment};
    return topics;
}

std::string TopicText(HelpTopic topic, const SharedValues& shared, const Captions& captions) {
    switch (topic) {
        case HelpTopic::Software:
            return shared.AppTitle + "-Software";
        case HelpTopic::Settings:
            return captions[Caption::Settings];
        case HelpTopic::ChartAndReadOut:
            return captions[Caption::ChartAndReadOut];
        case HelpTopic::ProjectData:
            return captions[Caption::Project] + captions[Caption::ProjectDataSecond];
        case HelpTopic::Component:
            return captions[Caption::Component];
        case HelpTopic::SelectSeries:
            return captions[Caption::SelectSeries] + " " + captions[Caption::Series];
        case HelpTopic::SetOfValues:
            return captions[Caption::SetOfValues];
        case HelpTopic::AirTreatment:
            break;
    }
    return captions[Caption::AirTreatment];
}

HelpPlace PlaceOf(HelpTopic topic) {
    switch (topic) {
        case HelpTopic::Software:
            return {kOwnFile, 1, 40};
        case HelpTopic::Settings:
            return {kOwnFile, 41, 20};
        case HelpTopic::ChartAndReadOut:
            return {kOwnFile, 61, 20};
        case HelpTopic::ProjectData:
            return {kOwnFile, 81, 20};
        case HelpTopic::Component:
            return {kOwnFile, 101, 20};
        case HelpTopic::SelectSeries:
            return {kOwnFile, 121, 20};
        case HelpTopic::SetOfValues:
            return {kOwnFile, 141, 20};
        case HelpTopic::AirTreatment:
            break;
    }
    return {kOwnFile, 161, 50};
}

HelpPlace FindTopic(std::string_view text, const SharedValues& shared, const Captions& captions) {
    // Where the captions are missing, an empty word is no topic.
    if (text.empty()) return {};
    for (const HelpTopic topic : HelpTopics()) {
        if (text == TopicText(topic, shared, captions)) return PlaceOf(topic);
    }
    return {};
}

}  // namespace zandrell
