#include "base/captions.h"

#include "base/data_files.h"
#include "base/delimited_text.h"

namespace zandrell {
namespace {

template <std::size_t Size>
void LoadList(const DataFiles& files, std::string_view prefix, std::string_view language_tag,
              std::array<std::string, Size>& list) {
    const FileText file = files.OpenForInput(std::string(prefix) + std::string(language_tag));
    DelimitedReader reader(file.text);
    for (std::size_t field = 1; field < Size; ++field) {
        list[field].clear();
        reader.ReadText(list[field]);
    }
}

}  // namespace

void LoadCaptions(const DataFiles& files, std::string_view language_tag, Captions& captions) {
    LoadList(files, "Caption.", language_tag, captions.CaptionList);
    captions.CaptionList[1].clear();
    captions.CaptionList[312] = "Transkritisch";
    captions.CaptionList[313] = "Booster";
}

void LoadAirCoCaptions(const DataFiles& files, std::string_view language_tag, Captions& captions) {
    LoadList(files, "AirCoCap.", language_tag, captions.AirCoCapList);
}

void LoadQVCaptions(const DataFiles& files, std::string_view language_tag, Captions& captions) {
    LoadList(files, "QVCapt.", language_tag, captions.QVCaptList);
    captions.heat_recovery_words = {
        "Wärmerückgewinnung", "Abluft",          "Rückwärmzahl",          "Investitionskosten",
        "Instandhaltung",     "Reparaturkosten", "Jahresbetriebsstunden", "Brennstoffkosten",
        "Sonstige Kosten",    "Zinssatz",        "Tilgungsdauer",         "Transmission"};
}

}  // namespace zandrell
