#pragma once

// How many fields the three caption files of a language hold. The suite's modules share the files
// and find a word by its position, so the counts stay although many fields are unused here.
namespace zandrell {

inline constexpr int kCaptionFields = 316;  // of a file as Caption.ENG
inline constexpr int kAirCoFields = 118;    // as AirCoCap.ENG
inline constexpr int kQvFields = 20;        // as QVCapt.ENG

}  // namespace zandrell
