// Text of any bytes is taken apart, put together again, and is the same from then on.
#include <cmath>
#include <string>
#include <vector>

#include "base/delimited_text.h"
#include "base/text_encoding.h"
#include "fuzz/fuzz_input.h"

namespace {

std::vector<std::string> ItemsOf(std::string_view text) {
    zandrell::DelimitedReader reader(text);
    std::vector<std::string> items;
    for (std::string item; reader.ReadText(item);) items.push_back(item);
    return items;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zandrell;
    const std::string text = DecodeText(fuzz::Bytes(data, size));
    fuzz::Require(DecodeText(EncodeText(text)) == text || text.starts_with("\xEF\xBB\xBF"));
    const std::vector<std::string> items = ItemsOf(text);
    fuzz::Require(items.size() <= text.size());
    DelimitedWriter writer;
    for (const std::string& item : items) writer.Text(item).EndLine();
    const std::vector<std::string> again = ItemsOf(writer.Result());
    fuzz::Require(again.size() == items.size());
    DelimitedWriter second;
    for (const std::string& item : again) second.Text(item).EndLine();
    fuzz::Require(second.Result() == writer.Result());
    DelimitedReader numbers(text);
    double value = 0;
    int whole = 0;
    bool flag = false;
    while (numbers.ReadNumber(value)) fuzz::Require(std::isfinite(value));
    DelimitedReader others(text);
    while (others.ReadInteger(whole) && others.ReadBoolean(flag)) {
    }
    return 0;
}
