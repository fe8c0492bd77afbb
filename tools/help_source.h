#pragma once

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "help/help_topics.h"

// The sources of the help texts, one file a language in UTF-8:
//
//     @ Settings               a topic begins, by its name below
//     # Heading                a line of its own
//     Text that goes on        lines are joined to a paragraph, a blank line parts two
//     - an item                begins a line
//     > set Temp1 32           an act that leads to the example's figures; not part of the text
//     gives {Kleist|6.63} kW   a figure of the program: the text has "6.63", and a test runs the
//                              acts up to here and compares it with what the control shows
namespace zandrell::help_source {

struct Figure {
    std::string control;
    std::string text;
    std::size_t acts = 0;  // how many of the topic's acts come before it
    std::size_t line = 0;
};

struct TopicSource {
    std::string text;  // with LF at line ends
    std::vector<std::string> acts;
    std::vector<Figure> figures;
    std::size_t line = 0;
};

using Topics = std::map<HelpTopic, TopicSource>;

inline constexpr std::array<std::pair<std::string_view, HelpTopic>, 8> kTopicNames = {{
    {"Software", HelpTopic::Software},
    {"Settings", HelpTopic::Settings},
    {"ChartAndReadOut", HelpTopic::ChartAndReadOut},
    {"ProjectData", HelpTopic::ProjectData},
    {"Component", HelpTopic::Component},
    {"SelectSeries", HelpTopic::SelectSeries},
    {"SetOfValues", HelpTopic::SetOfValues},
    {"AirTreatment", HelpTopic::AirTreatment},
}};

[[noreturn]] inline void Fail(const std::string& file, std::size_t line, const std::string& fault) {
    throw std::runtime_error(file + ":" + std::to_string(line) + ": " + fault);
}

// Reads one file; throws std::runtime_error with file, line and fault.
class Reader {
  public:
    explicit Reader(const std::filesystem::path& path) : path_(path.string()) {}

    Topics Read() {
        std::ifstream stream(path_);
        if (!stream) Fail(path_, 0, "can not be read");
        for (std::string line; std::getline(stream, line);) {
            ++line_;
            TakeLine(line);
        }
        EndTopic();
        return std::move(topics_);
    }

  private:
    void TakeLine(const std::string& line) {
        if (line.starts_with("@ ")) return BeginTopic(line.substr(2));
        if (topic_ == nullptr) {
            if (!line.empty()) Fail(path_, line_, "text in front of the first topic");
            return;
        }
        if (line.starts_with("> ")) {
            topic_->acts.push_back(line.substr(2));
            return;
        }
        if (line.empty()) {
            open_ = false;
            blank_ = !topic_->text.empty();
            return;
        }
        const bool heading = line.starts_with("# ");
        const bool item = line.starts_with("- ");
        Append(WithoutMarkers(heading ? line.substr(2) : line), item || heading);
        open_ = !heading;
    }

    void Append(const std::string& text, bool own_line) {
        std::string& target = topic_->text;
        if (blank_) {
            target += "\n\n";
        } else if (!target.empty()) {
            target += open_ && !own_line ? " " : "\n";
        }
        blank_ = false;
        target += text;
    }

    std::string WithoutMarkers(std::string line) {
        for (auto start = line.find('{'); start != std::string::npos;
             start = line.find('{', start)) {
            const auto bar = line.find('|', start), end = line.find('}', start);
            if (bar == std::string::npos || end == std::string::npos || bar > end) {
                Fail(path_, line_, "a figure is {CONTROL|figure}");
            }
            const std::string figure = line.substr(bar + 1, end - bar - 1);
            topic_->figures.push_back(
                {line.substr(start + 1, bar - start - 1), figure, topic_->acts.size(), line_});
            line.replace(start, end - start + 1, figure);
        }
        return line;
    }

    void BeginTopic(const std::string& name) {
        EndTopic();
        const auto found = std::find_if(kTopicNames.begin(), kTopicNames.end(),
                                        [&](const auto& entry) { return entry.first == name; });
        if (found == kTopicNames.end()) Fail(path_, line_, "there is no topic " + name);
        if (topics_.contains(found->second)) Fail(path_, line_, name + " stands twice");
        topic_ = &topics_[found->second];
        topic_->line = line_;
        open_ = blank_ = false;
    }

    void EndTopic() {
        if (topic_ != nullptr && topic_->text.empty()) {
            Fail(path_, topic_->line, "a topic without text");
        }
    }

    std::string path_;
    Topics topics_;
    TopicSource* topic_ = nullptr;
    std::size_t line_ = 0;
    bool open_ = false;   // the last line of the text is one of a paragraph
    bool blank_ = false;  // a blank line was passed
};

}  // namespace zandrell::help_source
