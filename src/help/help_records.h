#pragma once

#include <string>
#include <string_view>

namespace zandrell {

// Help files hold records of 128 bytes: "#" and 127 bytes of text, or a free record that starts
// with anything else. Records are counted from 1. Texts are UTF-8, with CR LF at line ends.
inline constexpr int kHelpRecordLength = 128;
inline constexpr int kHelpTextLength = 127;

// The text of a run of records, without outer blanks. Free records leave no gap; what lies behind
// the end of the file is free.
std::string HelpText(std::string_view file_bytes, int first, int count);

// The bytes of the file with a text in the place of a run of records; the other records stay, and a
// file that is too short is filled up with blanks. A text beyond count * 127 bytes is cut.
std::string WithHelpText(std::string file_bytes, int first, int count, std::string_view text);

// Whether a text would be cut.
bool FitsHelpRecords(std::string_view text, int count);

}  // namespace zandrell
