#pragma once

#include <array>
#include <string>
#include <string_view>

namespace zandrell {

// The fields of a catalogue record in their order. Those that no part of the program reads keep
// their number: they are passed on as they stand.
enum class KatalogFeld : std::size_t {
    KatTyp,   // type designation, first part
    KatWert,  // kv value in m3/h of line components, swept volume in m3/h of compressors
    Field3,
    KatWert2,  // free value, shown as text
    KatTyp2,   // type designation, second part
    Field6,
    KatBasis,    // 0, 1 or 2: on what an air cooler's capacity is rated
    KatGewicht,  // kg
    KatVolumen,  // air volume flow, m3/h
    KatWurf,     // throw, m
    KatLamelle,  // fin spacing, mm
    Field12,
    Field13,
    Field14,
    Field15,
    Field16,
    KatLeistung,  // rated capacity in kW; of a compressor a code, see SetCompressorKind
    KatAntrieb,   // electric power in kW of coolers and condensers; lower limit of the pressure
                  // drop in mbar of regulating components; a substitute capacity in kW
    KatText10,
    Group1Field1,
    Group1Field2,
    Group1Field3,
    Group1Field4,
    Group2Field1,
    Group2Field2,
    Group2Field3,
    Group2Field4,
    Group3Field1,
    Group3Field2,
    Group3Field3,
    Group3Field4,
    Group4Field1,
    Group4Field2,
    Group4Field3,
    Group4Field4,
    Group5Field1,
    Group5Field2,
    Group5Field3,
    KatBild,  // file name of the unit's picture
};

inline constexpr std::size_t kKatalogFelder = 39;

// A field as the record holds it: text in single bytes, padded with blanks to its width.
struct FieldPlace {
    std::string_view name;
    std::size_t offset = 0;
    std::size_t width = 0;
    bool oem = false;  // in the old DOS code page, else in the Windows code page
};

extern const std::array<FieldPlace, kKatalogFelder> kFieldPlaces;

inline const FieldPlace& PlaceOf(KatalogFeld field) {
    return kFieldPlaces[static_cast<std::size_t>(field)];
}

// One record of a series file, seen where its bytes stand: nothing is copied before it is asked
// for. The bytes must outlive it.
class KatalogSatz {
  public:
    static constexpr std::size_t kLength = 570;

    KatalogSatz() = default;
    // Fewer bytes make a record whose last fields are cut or empty.
    explicit KatalogSatz(std::string_view bytes) : bytes_(bytes.substr(0, kLength)) {}

    // As stored, with its padding.
    std::string_view operator[](KatalogFeld field) const;

    // By ParseNumber: a comma is as good as a point, a blank field is 0.
    double Number(KatalogFeld field) const;

    // For people, in UTF-8, trimmed. Of the DOS fields a double quote becomes two apostrophes, and
    // what thereby grows beyond the width of the field is cut.
    std::string Text(KatalogFeld field) const;

    // In UTF-8, trimmed, but without the way from the DOS code page: what the search compares.
    std::string StoredText(KatalogFeld field) const;

    // Whether it ends its series: KatWert, KatWert2, KatLeistung and KatAntrieb are all 0.
    bool IsEndMark() const;

  private:
    std::string_view bytes_;
};

// What the units of a catalogue are, and by which formulas they get their figures.
enum class KatalogFamilie {
    AirCoolers,
    Condensers,
    Compressors,
    StoredCapacity,        // units listed by a capacity that stands in the record
    RegulatingComponents,  // line components with a kv value and a lowest pressure drop
    LineComponents,        // line components with a kv value
    Unknown
};

// The kinds that the program handles, in ascending order.
inline constexpr std::array<int, 14> kKatalogArten = {1,   50,  100, 150, 200, 250, 300,
                                                      350, 450, 550, 600, 650, 700, 750};

KatalogFamilie FamilyOf(int KatalogArt);

// A few words for lists, as in "air coolers".
std::string_view FamilyName(KatalogFamilie family);

// "C" for the module MOLK in any case, "I" for every other one.
std::string_view KatalogPrefix(std::string_view ModuleTag);

// The name of the index file of a kind, as in "I600.DAT".
std::string KatalogIndex(std::string_view ModuleTag, int KatalogArt);

}  // namespace zandrell
