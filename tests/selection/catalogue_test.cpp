#include "selection/catalogue.h"

#include <gtest/gtest.h>

#include "selection/unit_figures.h"
#include "support/catalogue_files.h"

namespace zandrell {
namespace {

using selection_test::RecordBytes;
using enum KatalogFeld;

// The offsets are a contract with other programs, so they are written down here once more, each
// with a number that can only stand there.
TEST(KatalogSatz, FieldsStandAtTheirOffsets) {
    struct Case {
        KatalogFeld field;
        std::size_t offset, width;
    };
    const Case cases[] = {{KatTyp, 0, 40},         {KatWert, 40, 5},       {Field3, 45, 15},
                          {KatWert2, 60, 12},      {KatTyp2, 72, 40},      {Field6, 112, 3},
                          {KatBasis, 115, 2},      {KatGewicht, 117, 6},   {KatVolumen, 123, 5},
                          {KatWurf, 128, 5},       {KatLamelle, 133, 4},   {Field12, 137, 6},
                          {Field16, 159, 6},       {KatLeistung, 165, 5},  {KatAntrieb, 170, 5},
                          {KatText10, 175, 10},    {Group1Field1, 185, 2}, {Group2Field4, 309, 30},
                          {Group3Field2, 341, 15}, {Group4Field1, 416, 2}, {Group5Field3, 510, 30},
                          {KatBild, 540, 30}};
    for (const auto& c : cases) {
        std::string bytes(KatalogSatz::kLength, '.');
        bytes.replace(c.offset, c.width, c.width, '#');
        const KatalogSatz record(bytes);
        EXPECT_EQ(record[c.field], std::string(c.width, '#')) << PlaceOf(c.field).name;
    }
    std::size_t end = 0;
    for (const auto& place : kFieldPlaces) {
        EXPECT_EQ(place.offset, end) << place.name;
        end += place.width;
    }
    EXPECT_EQ(end, KatalogSatz::kLength);
}

TEST(KatalogSatz, NumbersTakeCommaAndPoint) {
    const std::string bytes = RecordBytes(
        {{KatWert, "1,5"}, {KatWert2, "1.5"}, {KatLeistung, " 12 kW"}, {KatAntrieb, "abc"}});
    const KatalogSatz record(bytes);
    EXPECT_EQ(record.Number(KatWert), 1.5);
    EXPECT_EQ(record.Number(KatWert2), 1.5);
    EXPECT_EQ(record.Number(KatLeistung), 12);
    EXPECT_EQ(record.Number(KatAntrieb), 0);
    EXPECT_EQ(record.Number(KatLamelle), 0) << "blank";
}

TEST(KatalogSatz, TextsComeFromTheirCodePages) {
    const std::string full = "\"" + std::string(39, 'x');
    const std::string bytes = RecordBytes({{KatTyp, "K\x81hler 1/2\" \xF8"},
                                           {KatTyp2, full},
                                           {KatText10, "\x8E\x99\x9A\x84\x94\xE1"},
                                           {KatWert2, "3 \xB0 \x80"},
                                           {KatBild, "  K\xFChler.bmp"}});
    const KatalogSatz record(bytes);
    EXPECT_EQ(record.Text(KatTyp), "Kühler 1/2'' °");
    EXPECT_EQ(record.Text(KatText10), "ÄÖÜäöß");
    EXPECT_EQ(record.Text(KatTyp2), "''" + std::string(38, 'x')) << "cut to the field's 40";
    EXPECT_EQ(record.Text(KatWert2), "3 ° €") << "not a DOS field";
    EXPECT_EQ(record.Text(KatBild), "Kühler.bmp");
    EXPECT_EQ(record.StoredText(KatTyp), "K\xC2\x81hler 1/2\" ø") << "for the search";
}

TEST(KatalogSatz, FourZeroNumbersEndASeries) {
    struct Case {
        KatalogFeld field;
        std::string text;
        bool ends;
    };
    const Case cases[] = {
        {KatWert, ",5", false},    {KatWert2, "1", false},    {KatLeistung, "2", false},
        {KatAntrieb, "-1", false}, {KatTyp, "AK 7", true},    {KatLeistung, "S1", true},
        {KatWert, " 0,00", true},  {KatLamelle, "4,5", true}, {KatGewicht, "12", true}};
    for (const auto& c : cases) {
        const std::string bytes = RecordBytes({{c.field, c.text}});
        const KatalogSatz record(bytes);
        EXPECT_EQ(record.IsEndMark(), c.ends) << PlaceOf(c.field).name << " " << c.text;
        EXPECT_EQ(ReadUnit(record).IsEndMark(), c.ends) << PlaceOf(c.field).name << " " << c.text;
    }
}

TEST(KatalogSatz, APieceOfARecordCutsItsFields) {
    const std::string bytes = RecordBytes({{KatTyp, "AK 7"}, {KatWert, "12345"}});
    const KatalogSatz record(std::string_view(bytes).substr(0, 43));
    EXPECT_EQ(record.Text(KatTyp), "AK 7");
    EXPECT_EQ(record.Number(KatWert), 123);
    EXPECT_EQ(record[KatWert2], "");
    EXPECT_TRUE(KatalogSatz().IsEndMark());
}

TEST(KatalogArt, ChoosesTheIndexFile) {
    EXPECT_EQ(KatalogIndex("QV", 600), "I600.DAT");
    EXPECT_EQ(KatalogIndex("molk", 1), "C1.DAT");
    EXPECT_EQ(KatalogIndex("MOLK2", 750), "I750.DAT");
    for (const int kind : kKatalogArten) {
        EXPECT_NE(FamilyOf(kind), KatalogFamilie::Unknown) << kind;
    }
    EXPECT_EQ(FamilyOf(601), KatalogFamilie::Unknown);
}

}  // namespace
}  // namespace zandrell
