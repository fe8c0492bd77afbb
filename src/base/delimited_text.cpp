#include "base/delimited_text.h"

#include <algorithm>

#include "base/number_text.h"
#include "base/text_encoding.h"

namespace zandrell {

bool DelimitedReader::AtEnd() {
    position_ = std::min(text_.find_first_not_of(" \r\n", position_), text_.size());
    return position_ == text_.size();
}

bool DelimitedReader::ReadText(std::string& target) {
    if (AtEnd()) return false;
    if (text_[position_] == '"') {
        const auto close = std::min(text_.find('"', position_ + 1), text_.size());
        target = text_.substr(position_ + 1, close - position_ - 1);
        position_ = std::min(text_.find_first_of(",\r\n", close), text_.size());
    } else {
        const auto end = std::min(text_.find_first_of(",\r\n", position_), text_.size());
        const auto item = text_.substr(position_, end - position_);
        target = item.substr(0, item.find_last_not_of(' ') + 1);
        position_ = end;
    }
    if (position_ < text_.size()) ++position_;
    return true;
}

bool DelimitedReader::ReadNumber(double& target) {
    std::string item;
    if (!ReadText(item)) return false;
    target = ToDouble(item);
    return true;
}

bool DelimitedReader::ReadInteger(int& target) {
    double value = 0;
    if (!ReadNumber(value)) return false;
    if (const auto rounded = RoundToInteger(value)) target = *rounded;
    return true;
}

bool DelimitedReader::ReadBoolean(bool& target) {
    std::string item;
    if (!ReadText(item)) return false;
    target = EqualIgnoringCase(item, "#TRUE#");
    return true;
}

void DelimitedReader::Skip(int items) {
    std::string passed;
    for (int i = 0; i < items && ReadText(passed); ++i) {
    }
}

void DelimitedWriter::Item(std::string_view item) {
    if (line_started_) result_ += ',';
    result_ += item;
    line_started_ = true;
}

DelimitedWriter& DelimitedWriter::Text(std::string_view text) {
    std::string item = "\"";
    for (const char c : text) {
        if (c == '"') {
            item += "''";
        } else {
            item += c;
        }
    }
    Item(item + "\"");
    return *this;
}

DelimitedWriter& DelimitedWriter::Number(double value) {
    Item(TrimmedNumberText(value));
    return *this;
}

DelimitedWriter& DelimitedWriter::Boolean(bool value) {
    Item(value ? "#TRUE#" : "#FALSE#");
    return *this;
}

DelimitedWriter& DelimitedWriter::EndLine() {
    result_ += "\r\n";
    line_started_ = false;
    return *this;
}

}  // namespace zandrell
