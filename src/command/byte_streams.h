#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <streambuf>
#include <string>
#include <string_view>
#include <vector>

namespace zandrell {

// Fills the block as far as bytes are there, and waits only while there are none. 0 is the end of
// the input; empty when it cannot be read.
using ByteSource = std::function<std::optional<std::size_t>(std::span<char> block)>;

// Takes all the bytes; false when they cannot be written.
using ByteSink = std::function<bool(std::string_view bytes)>;

// The ends of open files. The descriptors stay with the caller.
ByteSource SourceOf(int descriptor);
ByteSink SinkOf(int descriptor);

// Lets a reader of lines read from a source. What cannot be read ends the input, and is told.
class SourceBuffer : public std::streambuf {
  public:
    explicit SourceBuffer(ByteSource source) : source_(std::move(source)) {}
    bool Failed() const { return failed_; }

  protected:
    int_type underflow() override;

  private:
    ByteSource source_;
    std::array<char, 1U << 12U> block_{};
    bool failed_ = false;
};

// Collects what is written until it is worth a call of the sink.
class BufferedSink {
  public:
    explicit BufferedSink(ByteSink sink) : sink_(std::move(sink)) {}

    // To be appended to; EndLine, when much has gathered, and Flush pass it on.
    std::string buffer;

    void EndLine() {
        buffer += '\n';
        if (buffer.size() >= kWorthWriting) Flush();
    }
    void Flush();
    // Stays set: what follows a failed write is dropped.
    bool Failed() const { return failed_; }

  private:
    static constexpr std::size_t kWorthWriting = 1U << 18U;
    ByteSink sink_;
    bool failed_ = false;
};

// Splits an input into lines with a memory that does not grow with it.
class LineReader {
  public:
    // A line that is longer than this is no row of a table.
    static constexpr std::size_t kLongestLine = 1U << 20U;

    struct Line {
        std::string_view text;  // without its end (LF or CR LF); valid until the next line is asked
        std::uint64_t number = 0;  // from 1
        bool too_long = false;     // more than kLongestLine bytes; the text is empty then
    };

    explicit LineReader(ByteSource source);

    // False at the end of the input, and when it cannot be read.
    bool Next(Line& line);
    // Whether Next has a line without asking for more bytes; the texts of earlier lines then stay.
    bool HoldsLine() const;
    bool Failed() const { return failed_; }

  private:
    bool Fill();
    void MakeRoom();
    void SkipToLineEnd();

    ByteSource source_;
    std::vector<char> block_;
    std::size_t begin_ = 0, end_ = 0;  // what of the block is not yet taken
    std::uint64_t lines_ = 0;
    bool ended_ = false, failed_ = false;
};

}  // namespace zandrell
