// The first line is a series, the rest a hidden list.
#include <algorithm>

#include "base/text_encoding.h"
#include "fuzz/fuzz_input.h"
#include "selection/series_filter.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zandrell;
    const std::string_view bytes = fuzz::Bytes(data, size);
    const auto end = std::min(bytes.find('\n'), bytes.size());
    const std::string name = DecodeText(bytes.substr(0, end));
    const HiddenSeries hidden = ParseHiddenSeries(DecodeText(bytes.substr(end)));
    fuzz::Require(end == bytes.size() || bytes[end] != '\n' || hidden.empty());
    const HiddenSeries texts = ParseHiddenSeries(DecodeText(bytes));
    for (const auto& text : texts) {
        fuzz::Require(!Trimmed(text).empty());
        fuzz::Require(Ventp(text, kIsHidden, "", texts) == 1);
        fuzz::Require(Ventp(text, kIsMissing, text, texts) == 0);
    }
    fuzz::Require(Ventp(name, kIsMissing, "", texts) == 0);
    fuzz::Require(Ventp(UpperCase(name), kIsMissing, name, texts) == 0);
    fuzz::Require(Ventp(UpperCase(name), kIsHidden, "", texts) ==
                  Ventp(name, kIsHidden, "", texts));
    return 0;
}
