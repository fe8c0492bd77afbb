#include "source_rules.h"

#include <fstream>
#include <map>
#include <optional>
#include <sstream>

namespace zandrell {
namespace {

namespace fs = std::filesystem;
using Rooms = std::set<std::string>;

const fs::path& SourceFolder() {
    static const fs::path folder = fs::weakly_canonical(fs::path(ZANDRELL_SOURCE) / "src");
    return folder;
}

// Rooms that are still to come have their floor already.
const std::map<std::string, Rooms>& AllowedRooms() {
    static const Rooms ground = {"base"};
    static const Rooms drawing = {"base", "forms", "canvas", "kernel"};
    static const Rooms trades = {"base", "forms", "canvas", "kernel", "chart"};
    static const Rooms program = {"base",      "forms",    "canvas",    "kernel",
                                  "chart",     "shell",    "processes", "projects",
                                  "selection", "printing", "help"};
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
        {"help", with(trades, "help")},
        {"printing", with(with(trades, "printing"), "processes")},
        {"shell", program},
        {"painter", with(trades, "painter")},
        {"desktop", with(with(program, "painter"), "desktop")},
        {"command", with(with(program, "painter"), "command")},
    };
    return allowed;
}

bool IsToolkitRoom(const std::string& room) { return room == "desktop" || room == "painter"; }

bool IsToolkitHeader(const std::string& spelling) {
    static const std::regex header(R"((^|/)(Q[A-Za-z0-9]+|Qt[A-Za-z]*/.*|q[a-z0-9_]+\.h)$)");
    return std::regex_search(spelling, header);
}

// The path from src/ on that an include means; empty for what does not lie there.
std::optional<fs::path> OwnFile(const SourceText& source, const std::string& spelling) {
    const fs::path beside = (SourceFolder() / source.path).parent_path() / spelling;
    const fs::path below = SourceFolder() / spelling;
    const auto own = [](const fs::path& file) -> std::optional<fs::path> {
        const fs::path from_source = fs::weakly_canonical(file).lexically_relative(SourceFolder());
        if (from_source.empty() || *from_source.begin() == "..") return std::nullopt;
        return from_source;
    };
    for (const fs::path& file : {beside, below}) {
        if (fs::exists(file.lexically_normal())) return own(file);
    }
    // A header that is made at build time stands in no folder of the sources.
    auto generated = own(below);
    if (generated && AllowedRooms().contains(generated->begin()->string())) return generated;
    return std::nullopt;
}

std::vector<std::string> LinesOf(const std::string& text) {
    std::istringstream stream(text);
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);) lines.push_back(line);
    return lines;
}

// What stands behind an include, without its brackets; a macro stays bare.
std::optional<std::string> IncludedBy(const std::string& line, bool& names_a_file) {
    static const std::regex include(
        R"(^\s*(?:#|%:)\s*(?:include|include_next|import)\s*(?:[<"]([^>"]*)[>"]|(\S.*)))");
    std::smatch match;
    if (!std::regex_search(line, match, include)) return std::nullopt;
    names_a_file = match[1].matched;
    return match[1].matched ? match[1].str() : match[2].str();
}

// Every way from a number to a text or back that the standard library, the toolkit and the ground
// floor offer. A space before the bracket is no way around.
const std::regex& NumberText() {
    static const std::regex ways(
        R"(\b(to_string|to_wstring|to_chars|from_chars|format|format_to|vformat|)"
        R"(v?sn?printf|v?s?f?scanf|strto[a-z]+|sto[ifdlu][a-z]*|ato[fil]l?|)"
        R"([io]?stringstream|QTextStream|QLocale|asprintf|setNum|number|arg|)"
        R"(to(Double|Float|U?Int|U?Long|U?LongLong|U?Short)|)"
        R"([A-Za-z]*NumberText|ParseNumber|ParsedNumber|ToDouble|ToInteger)\s*[({]|)"
        R"(\b([io]?stringstream|QTextStream|QLocale)\s+\w+)");
    return ways;
}

// Where a count may pass through text above the ground floor: no figure of the trade does.
struct NumberException {
    const char *file, *way;
};
constexpr NumberException kNumberExceptions[] = {
    {"desktop/program_start.cpp", "sscanf"},         // the size asked for on the command line
    {"desktop/script_runner.cpp", "istringstream"},  // the words of a script's line
    {"painter/chart_file.cpp", "to_string"},         // the largest side, in a message
};

bool IsExcepted(const fs::path& file, const std::string& found) {
    for (const auto& exception : kNumberExceptions) {
        if (file == exception.file && found.find(exception.way) == 0) return true;
    }
    return false;
}

// The number texts that a file holds.
std::vector<std::string> NumberTextsIn(const SourceText& source) {
    std::vector<std::string> found;
    const std::string code = CodeOf(source.text);
    for (std::sregex_iterator at(code.begin(), code.end(), NumberText()), end; at != end; ++at) {
        found.push_back(at->str());
    }
    return found;
}

}  // namespace

std::vector<SourceText> AllSources() {
    std::vector<SourceText> sources;
    for (const auto& entry : fs::recursive_directory_iterator(SourceFolder())) {
        if (!entry.is_regular_file() || entry.path().filename() == "CMakeLists.txt") continue;
        std::ifstream stream(entry.path());
        sources.push_back({entry.path().lexically_relative(SourceFolder()),
                           (std::ostringstream() << stream.rdbuf()).str()});
    }
    return sources;
}

std::string CodeOf(std::string_view text) {
    std::string code;
    char quote = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto next = text.substr(i);
        if (next.starts_with("\\\n")) {
            ++i;
        } else if (quote != 0) {
            code += text[i];
            if (text[i] == '\\' && i + 1 < text.size()) code += text[++i];
            // A quote that the line leaves open, as in a long number or a raw text, ends with it.
            else if (text[i] == quote || text[i] == '\n')
                quote = 0;
        } else if (next.starts_with("//")) {
            i = std::min(text.find('\n', i), text.size()) - 1;
        } else if (next.starts_with("/*")) {
            i = std::min(text.find("*/", i + 2), text.size() - 2) + 1;
            code += ' ';
        } else {
            if (text[i] == '"' || text[i] == '\'') quote = text[i];
            code += text[i];
        }
    }
    return code;
}

std::vector<std::string> IncludeBreaches(const SourceText& source) {
    const auto allowed = AllowedRooms().find(source.Room());
    if (allowed == AllowedRooms().end()) return {"no floor is known for " + source.path.string()};
    std::vector<std::string> breaches;
    const auto breach = [&](const std::string& what) {
        breaches.push_back(source.path.string() + ": " + what);
    };
    for (const auto& line : LinesOf(CodeOf(source.text))) {
        bool names_a_file = false;
        const auto included = IncludedBy(line, names_a_file);
        if (!included) continue;
        if (!names_a_file) {
            breach("an include that names no file: " + *included);
        } else if (const auto own = OwnFile(source, *included)) {
            if (!allowed->second.contains(own->begin()->string())) breach("upward: " + *included);
            if (IsToolkitRoom(source.Room()) && own->string() == "base/number_text.h") {
                breach("number text: " + *included);
            }
        } else if (IsToolkitHeader(*included) && !IsToolkitRoom(source.Room())) {
            breach("toolkit: " + *included);
        }
    }
    return breaches;
}

std::vector<std::string> NumberBreaches(const SourceText& source) {
    std::vector<std::string> breaches;
    if (!IsToolkitRoom(source.Room())) return breaches;
    for (const auto& found : NumberTextsIn(source)) {
        if (!IsExcepted(source.path, found))
            breaches.push_back(source.path.string() + ": " + found);
    }
    return breaches;
}

std::vector<std::string> UnusedNumberExceptions(const std::vector<SourceText>& sources) {
    std::vector<std::string> unused;
    for (const auto& exception : kNumberExceptions) {
        bool used = false;
        for (const auto& source : sources) {
            if (source.path != exception.file) continue;
            for (const auto& found : NumberTextsIn(source)) {
                used = used || found.find(exception.way) == 0;
            }
        }
        if (!used) unused.push_back(std::string(exception.file) + ": " + exception.way);
    }
    return unused;
}

}  // namespace zandrell
