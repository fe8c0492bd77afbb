// make_help SOURCE_FOLDER OUTPUT_FOLDER
//
// Turns each XXX.txt of the source folder (see help_source.h) into the record file Zandhelp.XXX. A
// fault is reported with file and line, and ends with status 1.

#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>

#include "help/help_records.h"
#include "help_source.h"

namespace {

using namespace zandrell;
namespace fs = std::filesystem;

void WriteRecords(const fs::path& source, const fs::path& target) {
    const auto topics = help_source::Reader(source).Read();
    std::string bytes;
    for (const auto& [name, topic] : help_source::kTopicNames) {
        const auto found = topics.find(topic);
        if (found == topics.end()) {
            help_source::Fail(source.string(), 0, "lacks the topic " + std::string(name));
        }
        const HelpPlace place = PlaceOf(topic);
        const auto& text = found->second.text;
        if (!FitsHelpRecords(text, place.count)) {
            help_source::Fail(source.string(), found->second.line,
                              std::string(name) + " is longer than its " +
                                  std::to_string(place.count * kHelpTextLength) + " bytes");
        }
        bytes = WithHelpText(std::move(bytes), place.first, place.count, text);
    }
    std::ofstream file(target, std::ios::binary);
    file << bytes;
    if (!file.flush()) throw std::runtime_error(target.string() + ": can not be written");
}

}  // namespace

int main(int count, char** arguments) {
    if (count != 3) {
        std::cerr << "make_help SOURCE_FOLDER OUTPUT_FOLDER\n";
        return EXIT_FAILURE;
    }
    try {
        for (const auto& entry : fs::directory_iterator(arguments[1])) {
            const fs::path& source = entry.path();
            if (source.extension() != ".txt") continue;
            WriteRecords(source, fs::path(arguments[2]) / ("Zandhelp." + source.stem().string()));
        }
    } catch (const std::exception& fault) {
        std::cerr << "make_help: " << fault.what() << '\n';
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
