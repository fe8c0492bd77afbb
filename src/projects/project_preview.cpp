#include "projects/project_preview.h"

#include <time.h>

#include <array>
#include <chrono>

#include "base/text_encoding.h"
#include "base/unit_texts.h"

namespace zandrell {
namespace {

constexpr std::size_t kLongestText = 24, kLongestFigure = 12;  // characters

// Positions in the working state, from 0.
constexpr std::size_t kTaus = 1, kTZuluft = 2, kTabLuft = 3, kVhAnlage = 4, kPhiZuluft = 6,
                      kPhiAbluft = 7, kPhiAussen = 8;

std::string ItemOf(const ProjectFile& project, std::size_t place) {
    return place < project.items.size() ? Shortened(Trimmed(project.items[place]), kLongestFigure)
                                        : std::string();
}

std::string StateText(const ProjectFile& project, std::size_t temperature, std::size_t humidity) {
    const std::string t = ItemOf(project, temperature), percent = ItemOf(project, humidity);
    std::string text = t.empty() ? t : t + " " + std::string(UnitDegC);
    if (!t.empty() && !percent.empty()) text += ", ";
    return percent.empty() ? text : text + percent + " %";
}

// The day and minute of the last change, in the one order that no language reads otherwise.
std::string TimeText(const std::filesystem::path& path) {
    std::error_code error;
    const auto written = std::filesystem::last_write_time(path, error);
    if (error) return {};
    const auto system = std::chrono::file_clock::to_sys(written);
    const std::time_t seconds = std::chrono::system_clock::to_time_t(
        std::chrono::time_point_cast<std::chrono::system_clock::duration>(system));
    std::tm parts{};
    std::array<char, 32> text{};
    if (::localtime_r(&seconds, &parts) == nullptr) return {};
    return {text.data(), std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M", &parts)};
}

}  // namespace

std::string Shortened(const std::string& text, std::size_t most) {
    std::string result;
    std::size_t count = 0;
    for (const char letter : text) {
        const auto byte = static_cast<unsigned char>(letter);
        const bool starts = (byte & 0xC0U) != 0x80U;
        if (starts && ++count > most) {
            while (!result.empty() && (static_cast<unsigned char>(result.back()) & 0xC0U) == 0x80U)
                result.pop_back();
            if (!result.empty()) result.pop_back();
            return result + "…";
        }
        result += byte < ' ' ? ' ' : letter;
    }
    return result;
}

ProjectPreview PreviewOf(const std::filesystem::path& path, const ProjectFile& project,
                         const ProjectContext& context) {
    const Captions& words = context.captions;
    ProjectPreview preview;
    const auto line = [&preview](const std::string& word, const std::string& figure) {
        const std::string_view end = preview.words.empty() ? "" : "\n";
        preview.words.append(end).append(word + ":");
        preview.figures.append(end).append(figure.empty() ? "-" : figure);
    };
    line(words[Caption::Project], Shortened(project.header.title, kLongestText));
    line(words[Caption::Remark], Shortened(project.header.remark, kLongestText));
    line(words[Caption::Date], TimeText(path));
    if (!EqualIgnoringCase(project.header.tag, context.shared.ModuleTag)) return preview;
    line(words[Caption::OutdoorAir], StateText(project, kTaus, kPhiAussen));
    line(words[Caption::SupplyAir], StateText(project, kTZuluft, kPhiZuluft));
    line(words[Caption::ExtractAir], StateText(project, kTabLuft, kPhiAbluft));
    const std::string flow = ItemOf(project, kVhAnlage);
    line(words[Caption::AirFlow], flow.empty() ? flow : flow + " " + std::string(UnitM3h));
    return preview;
}

}  // namespace zandrell
