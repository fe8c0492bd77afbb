#pragma once

#include <array>
#include <string>
#include <string_view>

namespace zandrell {

class DataFiles;

// The words of the program in one language: three positional lists, fields counted from 1 (element
// 0 is not used), and the twelve labels of the heat-recovery cost panel, German in every language.
struct Captions {
    static constexpr int kCaptionFields = 316;
    static constexpr int kAirCoFields = 118;
    static constexpr int kQvFields = 20;

    std::array<std::string, kCaptionFields + 1> CaptionList;
    std::array<std::string, kAirCoFields + 1> AirCoCapList;
    std::array<std::string, kQvFields + 1> QVCaptList;
    std::array<std::string, 12> heat_recovery_words;
};

// Each reads its list out of the file "Caption.", "AirCoCap." or "QVCapt." with the language tag.
// Fields that a missing or short file does not reach stay empty, and nothing is reported.
void LoadCaptions(const DataFiles& files, std::string_view language_tag, Captions& captions);
void LoadAirCoCaptions(const DataFiles& files, std::string_view language_tag, Captions& captions);
void LoadQVCaptions(const DataFiles& files, std::string_view language_tag, Captions& captions);

}  // namespace zandrell
