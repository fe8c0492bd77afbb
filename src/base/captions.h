#pragma once

#include <array>
#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>

#include "base/caption_lists.h"
#include "base/caption_names.h"  // made at build time from data/captions/slots.tsv

namespace zandrell {

class DataFiles;

// The words of the program in one language: three positional lists, fields counted from 1 (element
// 0 is not used). A word is addressed by its name, as in captions[Caption::Enthalpy], whichever
// list holds it; data/captions/slots.tsv names them.
class Captions {
  public:
    const std::string& operator[](Caption word) const;
    std::string& operator[](Caption word);

    // The twelve labels of the heat-recovery cost panel, German in every language.
    std::array<std::string, 12> heat_recovery_words;

  private:
    friend void LoadCaptions(const DataFiles&, std::string_view, Captions&);
    friend void LoadAirCoCaptions(const DataFiles&, std::string_view, Captions&);
    friend void LoadQVCaptions(const DataFiles&, std::string_view, Captions&);

    std::array<std::string, kCaptionFields + 1> CaptionList;
    std::array<std::string, kAirCoFields + 1> AirCoCapList;
    std::array<std::string, kQvFields + 1> QVCaptList;
};

// Each reads its list out of the file "Caption.", "AirCoCap." or "QVCapt." with the language tag.
// Fields that a missing or short file does not reach stay empty, and nothing is reported.
void LoadCaptions(const DataFiles& files, std::string_view language_tag, Captions& captions);
void LoadAirCoCaptions(const DataFiles& files, std::string_view language_tag, Captions& captions);
void LoadQVCaptions(const DataFiles& files, std::string_view language_tag, Captions& captions);

// A message of the captions with its places filled: %1 becomes the first value, %9 the ninth. A
// place without a value, and a percent sign that marks no place, stay as they are; a place inside
// a value is text.
std::string FilledIn(std::string_view message, std::initializer_list<std::string_view> values);

}  // namespace zandrell
