#pragma once

// How many fields the three caption files of a language hold. The suite's modules share the files
// and find a word by its position, so the counts stay although many fields are unused here.
namespace zandrell {

inline constexpr int kCaptionFields = 316;  // Caption.XXX
inline constexpr int kAirCoFields = 118;    // AirCoCap.XXX
inline constexpr int kQvFields = 20;        // QVCapt.XXX

}  // namespace zandrell
