#include "shell/help_in_hand.h"

#include <array>
#include <utility>

#include "shell/main_form.h"

namespace zandrell {

HelpTopic TopicInHand(const MainForm& main, std::string_view open) {
    constexpr std::array<std::pair<std::string_view, HelpTopic>, 5> kWindows = {{
        {"qvopt", HelpTopic::Settings},
        {"DruckEInstell", HelpTopic::Settings},
        {"ProjLaden", HelpTopic::ProjectData},
        {"VentZeig", HelpTopic::SelectSeries},
        {"StateTable", HelpTopic::AirTreatment},
    }};
    for (const auto& [window, topic] : kWindows) {
        if (open == window) return topic;
    }
    const bool panel_open =
        main.processes.point.Anlage1PN.visible || main.processes.plant.Frame1.visible;
    return panel_open ? HelpTopic::AirTreatment : HelpTopic::ChartAndReadOut;
}

}  // namespace zandrell
