#include "base/captions.h"

#include <utility>

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

const std::string& Captions::operator[](Caption word) const {
    // The value of a name is its place in the three lists laid end to end.
    const auto place = static_cast<std::size_t>(word);
    if (place <= kCaptionFields) return CaptionList[place];
    if (place <= kCaptionFields + kAirCoFields) return AirCoCapList[place - kCaptionFields];
    return QVCaptList[place - kCaptionFields - kAirCoFields];
}

std::string& Captions::operator[](Caption word) {
    return const_cast<std::string&>(std::as_const(*this)[word]);
}

void LoadCaptions(const DataFiles& files, std::string_view language_tag, Captions& captions) {
    LoadList(files, "Caption.", language_tag, captions.CaptionList);
    captions[Caption::Transcritical] = "Transkritisch";
    captions[Caption::Booster] = "Booster";
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

std::string FilledIn(std::string_view message, std::initializer_list<std::string_view> values) {
    std::string text;
    for (std::size_t i = 0; i < message.size(); ++i) {
        const char digit = i + 1 < message.size() ? message[i + 1] : '\0';
        const bool place = message[i] == '%' && digit >= '1' && digit <= '9';
        const auto value = static_cast<std::size_t>(digit - '1');
        if (place && value < values.size()) {
            text += values.begin()[value];
            ++i;
        } else {
            text += message[i];
        }
    }
    return text;
}

}  // namespace zandrell
