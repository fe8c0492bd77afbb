#pragma once

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace zandrell {

// What a table must hold of a column.
enum class ColumnNeed {
    Always,         // the column, and a number in each row
    ColumnMayLack,  // a number in each row, if there is the column
    NumberMayLack,  // neither column nor number, unless the calculation asks for it
    Text            // the column may lack; what it says goes to TakeText
};

struct InputColumn {
    std::string_view name;
    ColumnNeed need = ColumnNeed::Always;
};

// A calculation that adds columns to a table, row by row.
class RowCalculation {
  public:
    virtual ~RowCalculation() = default;

    virtual std::span<const InputColumn> Inputs() const = 0;
    virtual std::span<const std::string_view> Results() const = 0;

    // One like this for another thread, where the two then work at the same time; null where one
    // has to do.
    virtual std::unique_ptr<RowCalculation> Another() const { return nullptr; }

    // `inputs` and `results` stand in the order of the two lists; the results come empty. A result
    // that does not exist stays empty, or may be no finite number; `reason` says in a few words why
    // there is none, where that is known, or what is to be said of those that there are. Requires:
    // numbers where the need of the column says so.
    virtual void Calculate(std::span<const std::optional<double>> inputs,
                           std::span<std::optional<double>> results, std::string& reason) = 0;

    // Told before Calculate what a column of texts says in the row; not told without the column.
    virtual void TakeText(std::size_t /*input*/, std::string_view /*text*/) {}

    // Asked after Calculate: the text that stands for a result in place of its number, an empty one
    // for an empty cell; null where the result is a number.
    virtual const std::string* TextResult(std::size_t /*result*/) const { return nullptr; }
};

}  // namespace zandrell
