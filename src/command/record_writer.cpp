#include "command/record_writer.h"

#include <cmath>
#include <utility>

#include "command/table_cells.h"

namespace zandrell {

void AppendCsvText(std::string& csv, std::string_view text) {
    const bool edge = !text.empty() && (text.front() == ' ' || text.back() == ' ');
    const bool quoted = edge || text.find_first_of(",\"") != std::string_view::npos;
    if (quoted) csv += '"';
    for (const char c : text) {
        const auto code = static_cast<unsigned char>(c);
        if (c == '"') csv += '"';
        csv += code < 0x20 || code == 0x7F ? ' ' : c;
    }
    if (quoted) csv += '"';
}

RecordWriter::RecordWriter(std::vector<std::string_view> columns, RowFormat format, ByteSink output)
    : columns_(std::move(columns)), json_(format == RowFormat::Json), output_(std::move(output)) {
    if (json_) return;
    for (const auto column : columns_) {
        if (cell_++ > 0) output_.buffer += ',';
        AppendCsvText(output_.buffer, column);
    }
    cell_ = 0;
    output_.EndLine();
}

void RecordWriter::StartCell() {
    std::string& buffer = output_.buffer;
    if (json_) {
        buffer += cell_ == 0 ? '{' : ',';
        AppendJsonString(buffer, columns_[cell_]);
        buffer += ':';
    } else if (cell_ > 0) {
        buffer += ',';
    }
    ++cell_;
}

RecordWriter& RecordWriter::Text(std::string_view text) {
    if (text.empty()) return Lacking();
    StartCell();
    if (json_) {
        AppendJsonString(output_.buffer, text);
    } else {
        AppendCsvText(output_.buffer, text);
    }
    return *this;
}

RecordWriter& RecordWriter::Number(double value) {
    if (!std::isfinite(value)) return Lacking();
    StartCell();
    AppendNumber(output_.buffer, value);
    return *this;
}

RecordWriter& RecordWriter::Lacking() {
    StartCell();
    if (json_) output_.buffer += "null";
    return *this;
}

void RecordWriter::EndRecord() {
    while (cell_ < columns_.size()) Lacking();
    if (json_) output_.buffer += '}';
    cell_ = 0;
    output_.EndLine();
}

bool RecordWriter::Finish() {
    output_.Flush();
    return !output_.Failed();
}

}  // namespace zandrell
