#include "command/row_run.h"

#include <algorithm>
#include <set>
#include <system_error>
#include <thread>

#include "base/text_encoding.h"
#include "base/text_helpers.h"
#include "command/record_writer.h"
#include "command/table_cells.h"
#include "command/table_rows.h"

namespace zandrell {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
// Fewer lines than this are done before a thread has begun.
constexpr std::size_t kWorthSharing = 400;

bool Fail(std::string& error, std::string reason) {
    error = std::move(reason);
    return false;
}

using Lines = std::span<const LineReader::Line>;

// Makes the rows of some lines, with a second core if there is one; they stay in their order.
class SharedWork {
  public:
    SharedWork(RowCalculation& calculation, const TableLayout& layout)
        : own_(calculation, layout), layout_(layout) {
        if (std::thread::hardware_concurrency() > 1) second_calculation_ = calculation.Another();
    }

    void Make(Lines lines, std::string& rows, std::string& reports) {
        const bool shared = second_calculation_ && lines.size() >= kWorthSharing;
        const std::size_t own = shared ? lines.size() / 2 : lines.size();
        second_rows_.clear();
        second_reports_.clear();
        std::thread second = shared ? Start(lines.subspan(own)) : std::thread();
        for (const auto& line : lines.first(own)) own_.Make(line, rows, reports);
        if (second.joinable()) {
            second.join();
        } else {
            for (const auto& line : lines.subspan(own)) own_.Make(line, rows, reports);
        }
        rows += second_rows_;
        reports += second_reports_;
    }

  private:
    // No thread when the system has none to give.
    std::thread Start(Lines lines) {
        try {
            return std::thread([this, lines] {
                RowMaker maker(*second_calculation_, layout_);
                for (const auto& line : lines) maker.Make(line, second_rows_, second_reports_);
            });
        } catch (const std::system_error&) {
            return {};
        }
    }

    RowMaker own_;
    const TableLayout& layout_;
    std::unique_ptr<RowCalculation> second_calculation_;
    std::string second_rows_, second_reports_;
};

class RowRun {
  public:
    RowRun(RowCalculation& calculation, RowFormat format, const RowStreams& streams)
        : calculation_(calculation),
          output_(streams.output),
          reports_(streams.reports),
          // Before the next bytes are waited for, what is done is handed over.
          reader_([this, &streams](std::span<char> block) {
              Flush();
              return streams.input(block);
          }) {
        layout_.json = format == RowFormat::Json;
    }

    bool Run(std::string& error) {
        LineReader::Line line;
        if (reader_.Next(line) && !TakeHeader(line, error)) return false;
        if (line.number == 1 && layout_.places.empty() && !reader_.Failed()) {
            return Fail(error, "the input is empty: its first line must name the columns");
        }
        TakeRows();
        if (reader_.Failed()) return Fail(error, "the input cannot be read");
        if (output_.Failed()) return Fail(error, "the output cannot be written");
        return true;
    }

  private:
    bool TakeHeader(const LineReader::Line& line, std::string& error);
    bool FindColumns(std::string& error);
    std::string HintFor(std::string_view column) const;
    bool NamesAreFitForJson(std::string& error) const;
    void TakeRows();

    void Flush() {
        output_.Flush();
        reports_.Flush();
    }

    RowCalculation& calculation_;
    TableLayout layout_;
    BufferedSink output_, reports_;
    LineReader reader_;
};

bool RowRun::TakeHeader(const LineReader::Line& line, std::string& error) {
    std::string_view text = line.text;
    if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
    std::vector<std::string_view> cells;
    if (line.too_long || !SplitCells(text, cells)) {
        return Fail(error, "line 1: no header line that names the columns");
    }
    for (const auto cell : cells) {
        std::string name = CellText(cell);
        const auto first = name.find_first_not_of(" \t");
        name.erase(0, std::min(first, name.size()));
        name.erase(name.find_last_not_of(" \t") + 1);
        layout_.names.push_back(std::move(name));
    }
    if (!FindColumns(error)) return false;
    if (layout_.json) return NamesAreFitForJson(error);
    output_.buffer += line.text;
    for (const auto result : calculation_.Results()) {
        output_.buffer += ',';
        AppendCsvText(output_.buffer, result);
    }
    output_.buffer += '\n';
    return true;
}

bool RowRun::FindColumns(std::string& error) {
    for (const auto& column : calculation_.Inputs()) {
        const auto found = std::find(layout_.names.begin(), layout_.names.end(), column.name);
        if (found == layout_.names.end() && column.need == ColumnNeed::Always) {
            return Fail(error, "line 1: there is no column " + std::string(column.name) +
                                   HintFor(column.name));
        }
        if (found != layout_.names.end() &&
            std::find(found + 1, layout_.names.end(), column.name) != layout_.names.end()) {
            return Fail(error, "line 1: there are two columns " + std::string(column.name));
        }
        layout_.places.push_back(found == layout_.names.end()
                                     ? TableLayout::kNoColumn
                                     : static_cast<std::size_t>(found - layout_.names.begin()));
    }
    return true;
}

// What the writer of the header may have meant.
std::string RowRun::HintFor(std::string_view column) const {
    if (layout_.names.size() == 1 &&
        layout_.names.front().find_first_of(";\t") != std::string::npos) {
        return ": commas part the cells";
    }
    for (const auto& name : layout_.names) {
        if (EqualIgnoringCase(name, column)) return ", but " + name;
    }
    return {};
}

// An object whose members share a name would lose one of them.
bool RowRun::NamesAreFitForJson(std::string& error) const {
    std::set<std::string_view> taken(calculation_.Results().begin(), calculation_.Results().end());
    for (const auto& name : layout_.names) {
        if (taken.insert(name).second) continue;
        return Fail(error,
                    "line 1: a JSON object cannot hold two members \"" + Excerpt(name) + '"');
    }
    return true;
}

// As many lines at a time as need no more bytes: their text stays where it is meanwhile.
void RowRun::TakeRows() {
    SharedWork work(calculation_, layout_);
    std::vector<LineReader::Line> lines;
    LineReader::Line line;
    while (!output_.Failed() && reader_.Next(line)) {
        lines.clear();
        do {
            if (line.too_long || !line.text.empty()) lines.push_back(line);
        } while (reader_.HoldsLine() && reader_.Next(line));
        work.Make(lines, output_.buffer, reports_.buffer);
        Flush();
    }
}

}  // namespace

bool RunRows(RowCalculation& calculation, RowFormat format, const RowStreams& streams,
             std::string& error) {
    return RowRun(calculation, format, streams).Run(error);
}

}  // namespace zandrell
