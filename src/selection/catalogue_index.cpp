#include "selection/catalogue_index.h"

#include <algorithm>

#include "base/delimited_text.h"
#include "base/number_text.h"
#include "base/text_encoding.h"

namespace zandrell {
namespace {

constexpr std::string_view kMarker = "#$§";
constexpr std::size_t kLongestAddress = 4;   // characters
constexpr std::size_t kLongestBaseName = 7;  // characters

bool StartsCharacter(char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }

std::size_t CharactersIn(std::string_view text) {
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), StartsCharacter));
}

std::string_view LastCharacters(std::string_view text, std::size_t count) {
    std::size_t begin = text.size();
    while (begin > 0 && count > 0) {
        if (StartsCharacter(text[--begin])) --count;
    }
    return text.substr(begin);
}

long WholeNumber(std::string_view text) {
    return RoundToInteger(ParsedNumber(std::string(text))).value_or(0);
}

std::string_view BehindFirstBlank(std::string_view text) {
    const auto blank = text.find(' ');
    return blank == std::string_view::npos ? std::string_view() : text.substr(blank);
}

}  // namespace

std::vector<IndexLine> ParseIndex(std::string_view text) {
    std::vector<IndexLine> lines;
    DelimitedReader reader(text);
    while (!reader.AtEnd()) {
        IndexLine line;
        for (auto* item :
             {&line.SerieDatei, &line.SerieKennung, &line.SerieText, &line.SerieAdresse}) {
            reader.ReadText(*item);
        }
        if (line.SerieDatei.empty() && line.SerieKennung.empty()) break;
        lines.push_back(std::move(line));
    }
    return lines;
}

IndexFile ReadIndex(const DataFiles& files, std::string_view KatalogIndex) {
    const FileText file = files.OpenForInput(KatalogIndex);
    return {file.status, ParseIndex(file.text)};
}

bool IsListed(const IndexLine& line) { return CharactersIn(Trimmed(line.SerieText)) > 2; }

std::string_view MakerOf(std::string_view SerieText) {
    return SerieText.substr(0, SerieText.find(' '));
}

std::string SeriesNameOf(std::string_view SerieText) {
    return Trimmed(BehindFirstBlank(SerieText));
}

long AddressOf(const IndexLine& line) { return WholeNumber(line.SerieAdresse); }

std::string KatalogDateiOf(std::string_view SerieDatei) { return Trimmed(SerieDatei) + "N.rdm"; }

std::string Locator(const IndexLine& line) {
    return line.SerieAdresse + std::string(kMarker) + "  " + line.SerieDatei;
}

SeriesPlace PlaceToOpen(std::string_view locator) {
    const auto marker = locator.find(kMarker);
    const auto before = marker == std::string_view::npos ? "" : locator.substr(0, marker);
    return {WholeNumber(LastCharacters(before, kLongestAddress)),
            KatalogDateiOf(LastCharacters(locator, kLongestBaseName))};
}

SeriesPlace PlaceToPreview(std::string_view locator) {
    const auto marker = locator.find(kMarker);
    if (marker == std::string_view::npos) return {WholeNumber(locator), KatalogDateiOf("")};
    return {WholeNumber(locator.substr(0, marker)),
            KatalogDateiOf(locator.substr(marker + kMarker.size()))};
}

}  // namespace zandrell
