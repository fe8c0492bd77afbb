#include "selection/series_list.h"

#include <algorithm>
#include <array>

#include "base/number_text.h"
#include "base/text_encoding.h"
#include "base/unit_texts.h"

namespace zandrell {
namespace {

constexpr int kRowHeight = 240;  // twips
constexpr std::size_t kMostMakers = 50;
constexpr int kColumns = 5;

// Continuation bytes of UTF-8 are none.
std::size_t CharactersIn(const std::string& word) {
    return static_cast<std::size_t>(std::count_if(word.begin(), word.end(), [](char c) {
        return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U;
    }));
}

bool Holds(const std::string& text, const std::string& word) {
    return Ventp(text, kIsMissing, word, {}) == 0;
}

}  // namespace

SearchWords WordsToSearch(std::string_view text) {
    const std::string trimmed = Trimmed(text);
    const auto blank = trimmed.find(' ');
    if (blank == std::string::npos) return {trimmed, "", false};
    return {Trimmed(trimmed.substr(0, blank)), Trimmed(trimmed.substr(blank)), true};
}

void SeriesList::Load() {
    Grid& grid = controls_.KatalogSpread;
    grid.SetColumns(kColumns);
    grid.SetRows(0, 0);
    grid.SetRows(1, kRowHeight);
}

void SeriesList::KopfZeile() {
    Grid& grid = controls_.KatalogSpread;
    const auto family = FamilyOf(context_.selection.inputs.KatalogArt);
    const bool ranges = family != KatalogFamilie::RegulatingComponents &&
                        family != KatalogFamilie::LineComponents &&
                        family != KatalogFamilie::Unknown;
    const int range_width = ranges ? 750 : 0;
    const std::array<int, kColumns> widths = {450, range_width, range_width, 6000, 0};
    for (std::size_t i = 0; i < widths.size(); ++i) grid.SetWidth(static_cast<int>(i), widths[i]);
    const std::string unit = " [" + std::string(UnitKW) + "]";
    grid.SetText(0, 1, "Qo min" + unit);
    grid.SetText(0, 2, "Qo max" + unit);
    grid.SetText(
        0, kSeriesTextColumn,
        context_.captions[Caption::Manufacturer] + "/" + context_.captions[Caption::Series]);
}

void SeriesList::FillAll() {
    controls_.HerstellList.Fill({});
    const HiddenSeries hidden = ReadHiddenSeries(context_.files);
    Fill([&](const IndexLine& line) { return Ventp(line.SerieText, kIsHidden, "", hidden) == 0; });
}

void SeriesList::SerieSuchen(std::string_view text) {
    controls_.pn77.visible = controls_.Picture2.visible = false;
    const SearchWords words = WordsToSearch(text);
    Fill([&](const IndexLine& line) { return Matches(line, words); });
    controls_.KatalogSpread.row = 1;
    controls_.KatalogSpread.column = kSeriesTextColumn;
    if (controls_.KatalogSpread.RowCount() > 1 || !controls_.StatusLab.text.empty()) return;
    controls_.StatusLab.text = FilledIn(context_.captions[Caption::NothingFound], {Trimmed(text)});
}

void SeriesList::Fill(const std::function<bool(const IndexLine&)>& wanted) {
    Grid& grid = controls_.KatalogSpread;
    const std::string name =
        KatalogIndex(context_.shared.ModuleTag, context_.selection.inputs.KatalogArt);
    const IndexFile index = ReadIndex(context_.files, name);
    missing_file_.clear();
    grid.SetRows(1, kRowHeight);
    KopfZeile();
    grid.SetRows(static_cast<int>(index.lines.size()) + 1, kRowHeight);
    int rows = 0;
    for (const IndexLine& line : index.lines) {
        progress_.ProgressB_Count();
        if (IsListed(line) && wanted(line)) AddSeries(line, ++rows);
    }
    grid.SetRows(rows + 1, kRowHeight);
    grid.SetTopRow(1);
    grid.row = grid.column = 1;
    for (int row = 1; row <= rows; ++row) grid.SetText(row, 0, TrimmedNumberText(row));
    ZeilenStreifen(rows, 1, controls_, progress_);
    TellStatus(index.status, name);
}

void SeriesList::AddSeries(const IndexLine& line, int row) {
    Grid& grid = controls_.KatalogSpread;
    NoteMaker(std::string(MakerOf(line.SerieText)));
    context_.selection.KatalogDatei = KatalogDateiOf(line.SerieDatei);
    units_.SerieLesen(AddressOf(line) - 2, kFindRange, row);
    if (units_.Status() != FileStatus::Ok && missing_file_.empty()) {
        missing_file_ = context_.selection.KatalogDatei;
    }
    grid.SetText(row, kSeriesTextColumn, line.SerieText);
    grid.SetText(row, kLocatorColumn, Locator(line));
}

void SeriesList::NoteMaker(const std::string& maker) {
    auto& makers = controls_.HerstellList.items;
    if (makers.size() >= kMostMakers) return;
    if (std::find(makers.begin(), makers.end(), maker) == makers.end()) makers.push_back(maker);
}

bool SeriesList::Matches(const IndexLine& line, const SearchWords& words) {
    constexpr std::size_t kOneLetter = 1;
    if (CharactersIn(words.first) <= kOneLetter) return false;
    const bool first = Holds(line.SerieText, words.first);
    const bool second = words.two && Holds(line.SerieText, words.second);
    if (words.two ? first && second : first) return true;
    if (first || second || context_.selection.TiefSuche != 1) return false;
    return MatchesUnits(line, words);
}

// With two words both parts of one name must hold a word each, be it the same one.
bool SeriesList::MatchesUnits(const IndexLine& line, const SearchWords& words) {
    const Serie serie = searched_.SerieLesen(KatalogDateiOf(line.SerieDatei), AddressOf(line) - 2);
    for (int i = 1; i <= Serie::kUnits; ++i) {
        const std::string type = serie.Satz(i).StoredText(KatalogFeld::KatTyp);
        const std::string type2 = serie.Satz(i).StoredText(KatalogFeld::KatTyp2);
        if (type.empty() && type2.empty()) return false;
        const auto hit = [&](const std::string& text) {
            return Holds(text, words.first) || (words.two && Holds(text, words.second));
        };
        if (words.two ? hit(type) && hit(type2) : hit(type) || hit(type2)) return true;
    }
    return false;
}

// A list that is empty or short because a file is not there must not look like a poor choice.
void SeriesList::TellStatus(FileStatus status, const std::string& name) {
    controls_.StatusLab.text.clear();
    const std::string missing = status != FileStatus::Ok ? name : missing_file_;
    if (missing.empty()) return;
    controls_.StatusLab.text = FilledIn(context_.captions[Caption::CatalogueUnreadable],
                                        {context_.files.Resolve(missing).string()});
}

}  // namespace zandrell
