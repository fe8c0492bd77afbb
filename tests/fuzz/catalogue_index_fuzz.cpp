// An index of any bytes is taken apart, and the locators that its lines make.
#include <algorithm>

#include "base/text_encoding.h"
#include "fuzz/fuzz_input.h"
#include "selection/catalogue_index.h"

namespace {

using namespace zandrell;

bool IsPlain(std::string_view text, std::size_t shortest, std::size_t longest) {
    const auto letter_or_digit = [](char c) {
        return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z');
    };
    return text.size() >= shortest && text.size() <= longest &&
           std::all_of(text.begin(), text.end(), letter_or_digit);
}

bool IsWholeNumber(std::string_view text) {
    return IsPlain(text, 1, 4) && text.find_first_not_of("0123456789") == std::string_view::npos;
}

void TakeApart(const IndexLine& line) {
    fuzz::Require(!line.SerieDatei.empty() || !line.SerieKennung.empty());
    fuzz::Require(MakerOf(line.SerieText).size() <= line.SerieText.size());
    fuzz::Require(SeriesNameOf(line.SerieText).size() <= line.SerieText.size());
    const SeriesPlace open = PlaceToOpen(Locator(line));
    const SeriesPlace preview = PlaceToPreview(Locator(line));
    fuzz::Require(open.KatalogDatei.ends_with("N.rdm"));
    fuzz::Require(preview.KatalogDatei.ends_with("N.rdm"));
    fuzz::Require(!IsListed(line) || line.SerieText.size() > 2);
    // Within the limits of the form both readers find what was written.
    if (!IsPlain(line.SerieDatei, 5, 7) || !IsWholeNumber(line.SerieAdresse)) return;
    const SeriesPlace written{AddressOf(line), KatalogDateiOf(line.SerieDatei)};
    fuzz::Require(open == written && preview == written);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes = fuzz::Bytes(data, size);
    for (const auto& line : ParseIndex(DecodeText(bytes))) TakeApart(line);
    PlaceToOpen(bytes);
    PlaceToPreview(bytes);
    return 0;
}
