#pragma once

#include <string>
#include <string_view>

namespace zandrell {

// Bytes of a file as UTF-8. Bytes that are valid UTF-8 are taken as they are (a byte order mark is
// dropped), anything else is read as Windows-1252, the code page of the suite's files.
std::string DecodeText(std::string_view bytes);

// UTF-8 text as the bytes of a file: Windows-1252, or UTF-8 as it stands when the code page cannot
// hold it or when its bytes would be taken for UTF-8 on the way back.
std::string EncodeText(std::string_view text);

// One Windows-1252 byte as UTF-8.
std::string DecodeByte(unsigned char byte);

// ASCII letters in capitals; other characters stay.
std::string UpperCase(std::string_view text);

// Whether two texts are equal without regard to the case of ASCII letters.
bool EqualIgnoringCase(std::string_view left, std::string_view right);

// Without leading and trailing blanks.
std::string Trimmed(std::string_view text);

}  // namespace zandrell
