#include "help/help_records.h"

#include <algorithm>

#include "base/text_encoding.h"

namespace zandrell {
namespace {

constexpr char kMark = '#';

std::size_t Offset(int record) {
    return static_cast<std::size_t>(record - 1) * static_cast<std::size_t>(kHelpRecordLength);
}

std::string WithCrLf(std::string_view text) {
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\n' && (i == 0 || text[i - 1] != '\r')) result += '\r';
        result += text[i];
    }
    return result;
}

std::string BytesOf(std::string_view text) { return EncodeText(WithCrLf(text)); }

}  // namespace

std::string HelpText(std::string_view file_bytes, int first, int count) {
    std::string joined;
    for (int i = 0; i < count; ++i) {
        const std::size_t start = Offset(first + i);
        if (start >= file_bytes.size()) break;
        const auto record = file_bytes.substr(start, kHelpRecordLength);
        if (record.front() != kMark) continue;
        joined += record.substr(1);
        joined.append(static_cast<std::size_t>(kHelpRecordLength) - record.size(), ' ');
    }
    // Decoded as a whole: a character of several bytes may lie in two records.
    return Trimmed(DecodeText(joined));
}

std::string WithHelpText(std::string file_bytes, int first, int count, std::string_view text) {
    const std::string bytes = BytesOf(text);
    const std::size_t needed = Offset(first + count);
    if (file_bytes.size() < needed) file_bytes.resize(needed, ' ');
    const std::size_t used = bytes.size() / kHelpTextLength + 1;
    for (int i = 0; i < count; ++i) {
        std::string record;
        if (static_cast<std::size_t>(i) < used) {
            record = kMark + bytes.substr(std::min(bytes.size(),
                                                   static_cast<std::size_t>(i) * kHelpTextLength),
                                          kHelpTextLength);
        }
        record.resize(kHelpRecordLength, ' ');
        file_bytes.replace(Offset(first + i), kHelpRecordLength, record);
    }
    return file_bytes;
}

bool FitsHelpRecords(std::string_view text, int count) {
    return BytesOf(text).size() <= static_cast<std::size_t>(count) * kHelpTextLength;
}

}  // namespace zandrell
