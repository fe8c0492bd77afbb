#pragma once

#include <string>
#include <string_view>

namespace zandrell {

// Reads the suite's delimited text: items one after another, parted by commas or line ends. Blanks
// and line ends in front of an item are passed over. A quoted item runs to the next double quote,
// an unquoted one to the next comma or line end, its trailing blanks cut.
class DelimitedReader {
  public:
    // `text` must outlive the reader.
    explicit DelimitedReader(std::string_view text) : text_(text) {}

    bool AtEnd();
    // Each returns false and leaves its target when no item is left.
    bool ReadText(std::string& target);
    // An item that is no number gives 0.
    bool ReadNumber(double& target);
    // To the nearest whole number; one beyond an int leaves the target.
    bool ReadInteger(int& target);
    // #TRUE# in any case is true, anything else false.
    bool ReadBoolean(bool& target);
    void Skip(int items);

  private:
    std::string_view text_;
    std::size_t position_ = 0;
};

// Builds the same kind of text.
class DelimitedWriter {
  public:
    // In double quotes; a double quote inside, which the form cannot hold, becomes two apostrophes.
    DelimitedWriter& Text(std::string_view text);
    DelimitedWriter& Number(double value);
    DelimitedWriter& Boolean(bool value);
    DelimitedWriter& EndLine();

    const std::string& Result() const { return result_; }

  private:
    void Item(std::string_view item);
    std::string result_;
    bool line_started_ = false;
};

}  // namespace zandrell
