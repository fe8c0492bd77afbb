#include "command/byte_streams.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace zandrell {
namespace {

constexpr std::size_t kFirstBlock = 1U << 18U;
constexpr std::size_t kLargestBlock = LineReader::kLongestLine + 2;  // with CR LF

}  // namespace

ByteSource SourceOf(int descriptor) {
    return [descriptor](std::span<char> block) -> std::optional<std::size_t> {
        for (;;) {
            const auto count = ::read(descriptor, block.data(), block.size());
            if (count >= 0) return static_cast<std::size_t>(count);
            if (errno != EINTR) return std::nullopt;
        }
    };
}

ByteSink SinkOf(int descriptor) {
    return [descriptor](std::string_view bytes) {
        while (!bytes.empty()) {
            const auto count = ::write(descriptor, bytes.data(), bytes.size());
            if (count < 0 && errno == EINTR) continue;
            if (count <= 0) return false;
            bytes.remove_prefix(static_cast<std::size_t>(count));
        }
        return true;
    };
}

SourceBuffer::int_type SourceBuffer::underflow() {
    const auto count = source_(block_);
    failed_ = failed_ || !count;
    if (!count || *count == 0) return traits_type::eof();
    setg(block_.data(), block_.data(), block_.data() + *count);
    return traits_type::to_int_type(block_[0]);
}

void BufferedSink::Flush() {
    if (!buffer.empty() && !failed_) failed_ = !sink_(buffer);
    buffer.clear();
}

LineReader::LineReader(ByteSource source) : source_(std::move(source)), block_(kFirstBlock) {}

bool LineReader::Next(Line& line) {
    line = {{}, lines_ + 1, false};
    std::size_t searched = 0;
    for (;;) {
        const char* start = block_.data() + begin_;
        const std::size_t held = end_ - begin_;
        const void* feed = std::memchr(start + searched, '\n', held - searched);
        if (feed != nullptr || (ended_ && held > 0)) {
            const std::size_t length =
                feed == nullptr ? held
                                : static_cast<std::size_t>(static_cast<const char*>(feed) - start);
            line.text = {start, length};
            begin_ += length + (feed != nullptr ? 1 : 0);
            break;
        }
        if (ended_) return false;
        if (held >= kLargestBlock) {
            line.too_long = true;
            break;
        }
        searched = held;
        Fill();
    }
    ++lines_;
    if (line.too_long) {
        SkipToLineEnd();
        return true;
    }
    if (line.text.ends_with('\r')) line.text.remove_suffix(1);
    line.too_long = line.text.size() > kLongestLine;
    if (line.too_long) line.text = {};
    return true;
}

bool LineReader::HoldsLine() const {
    return std::memchr(block_.data() + begin_, '\n', end_ - begin_) != nullptr;
}

bool LineReader::Fill() {
    MakeRoom();
    const auto count = source_({block_.data() + end_, block_.size() - end_});
    failed_ = !count;
    ended_ = !count || *count == 0;
    if (!ended_) end_ += *count;
    return !ended_;
}

// Behind what is still held, which moves to the front of the block.
void LineReader::MakeRoom() {
    if (begin_ > 0) std::memmove(block_.data(), block_.data() + begin_, end_ - begin_);
    end_ -= begin_;
    begin_ = 0;
    if (end_ == block_.size()) block_.resize(std::min(2 * block_.size(), kLargestBlock));
}

void LineReader::SkipToLineEnd() {
    for (;;) {
        const void* feed = std::memchr(block_.data() + begin_, '\n', end_ - begin_);
        if (feed != nullptr) {
            begin_ = static_cast<std::size_t>(static_cast<const char*>(feed) - block_.data()) + 1;
            return;
        }
        begin_ = end_;
        if (!Fill()) return;
    }
}

}  // namespace zandrell
