// The house has floors: an include points down, never up and never to a neighbour. Qt lives at the
// top, number text at the bottom.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;
using Rooms = std::set<std::string>;

const std::map<std::string, Rooms>& AllowedRooms() {
    static const Rooms ground = {"base"};
    static const Rooms drawing = {"base", "forms", "canvas", "kernel"};
    static const Rooms trades = {"base", "forms", "canvas", "kernel", "chart"};
    static const Rooms program = {"base",  "forms",     "canvas",   "kernel",    "chart",
                                  "shell", "processes", "projects", "selection", "printing"};
    static const auto with = [](Rooms rooms, const std::string& own) {
        rooms.insert(own);
        return rooms;
    };
    static const std::map<std::string, Rooms> allowed = {
        {"base", ground},
        {"forms", with(ground, "forms")},
        {"kernel", {"base", "forms", "kernel"}},
        {"canvas", {"base", "forms", "canvas"}},
        {"chart", with(drawing, "chart")},
        {"processes", with(trades, "processes")},
        {"selection", with(trades, "selection")},
        {"projects", with(trades, "projects")},
        {"printing", with(with(trades, "printing"), "processes")},
        {"shell", program},
        {"painter", with(trades, "painter")},
        {"desktop", with(with(program, "painter"), "desktop")},
        {"command", with(with(program, "painter"), "command")},
    };
    return allowed;
}

bool MayUseQt(const fs::path& file) {
    const auto room = file.parent_path().filename();
    return room == "desktop" || room == "painter";
}

std::vector<std::string> LinesOf(const fs::path& file) {
    std::ifstream stream(file);
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);) lines.push_back(line);
    return lines;
}

std::vector<fs::path> Sources() {
    std::vector<fs::path> files;
    for (const auto& entry : fs::recursive_directory_iterator(fs::path(ZANDRELL_SOURCE) / "src")) {
        const auto extension = entry.path().extension();
        if (extension == ".h" || extension == ".cpp") files.push_back(entry.path());
    }
    return files;
}

TEST(Layers, IncludesPointDown) {
    const std::regex own_include("^#include \"([a-z]+)/");
    const std::regex qt_include("^#include <Q[A-Za-z]+>");
    const auto files = Sources();
    ASSERT_GT(files.size(), 50U);
    for (const auto& file : files) {
        const std::string room = file.parent_path().filename();
        const auto allowed = AllowedRooms().find(room);
        ASSERT_NE(allowed, AllowedRooms().end()) << "no floor is known for " << room;
        for (const auto& line : LinesOf(file)) {
            std::smatch match;
            if (std::regex_search(line, match, own_include)) {
                EXPECT_TRUE(allowed->second.contains(match[1])) << file << ": " << line;
            }
            EXPECT_TRUE(MayUseQt(file) || !std::regex_search(line, qt_include))
                << file << ": " << line;
        }
    }
}

TEST(Layers, WindowsNeitherFormatNorParseNumbers) {
    const std::regex number_text(
        R"(number_text\.h|to_chars|from_chars|QString::number|\.toDouble\(|\.toInt\(|std::sto[a-z]+\(|QString::asprintf|snprintf\()");
    for (const auto& file : Sources()) {
        const std::string room = file.parent_path().filename();
        if (room != "desktop" && room != "painter") continue;
        for (const auto& line : LinesOf(file)) {
            EXPECT_FALSE(std::regex_search(line, number_text)) << file << ": " << line;
        }
    }
}

}  // namespace
