#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace zandrell {

// Makes a text fit for a file name, in place, and returns it. Mode 1: the first double quote
// becomes two apostrophes. Any other mode: the first occurrence of each of . , : - & = ! and the
// blank goes. Only the first one goes, as the suite's other modules derive their names.
std::string MakeFileNameSafe(int mode, std::string& text);

// Whether `text` is one of a few words, such as the tags of languages that share a wording.
bool IsOneOf(std::string_view text, std::initializer_list<std::string_view> words);

// A piece of foreign text for a message: no control characters, and not longer than a few words.
std::string Excerpt(std::string_view text);

// A character code of the old DOS code page, as the suite's catalogue files store their names, in
// the Windows code page. Umlauts, sharp s and the degree sign move, a double quote gives -1, all
// other codes stay.
int OemCharToAnsi(int code);

// A text of DOS bytes in UTF-8; a double quote becomes two apostrophes, a zero byte nothing.
std::string OemTextToAnsi(std::string_view bytes);

}  // namespace zandrell
