#include "catalogue_tables.h"

#include <gtest/gtest.h>

#include <random>

namespace zandrell::catalogues {
namespace {

const FieldPlace kDos{"KatTyp", 0, 8, true};
const FieldPlace kWindows{"KatBild", 0, 8, false};

TEST(CatalogueTables, EveryByteOfAFieldFindsItsWayBack) {
    for (const auto& place : {kDos, kWindows}) {
        for (int code = 0; code <= 0xFF; ++code) {
            std::string field = " x" + std::string(1, static_cast<char>(code));
            field.resize(place.width, ' ');
            const std::string cell = CellOf(place, field);
            std::string bytes, reason;
            EXPECT_TRUE(FieldOf(place, cell, bytes, reason)) << code << " " << cell << reason;
            EXPECT_EQ(bytes, field) << code << " " << cell;
        }
    }
}

TEST(CatalogueTables, LettersHaveTheByteOfTheirCodePage) {
    struct Case {
        const FieldPlace& place;
        const char *cell, *bytes;
    };
    const Case cases[] = {{kDos, "Kühl 3\"", "K\x81hl 3\" "},
                          {kWindows, "Kühl.bmp", "K\xFChl.bmp"},
                          {kDos, "äÄöÖÜß°", "\x84\x8E\x94\x99\x9A\xE1\xF8 "},
                          {kDos, "é\\xFC\\\\", "\xE9\xFC\\     "},
                          {kWindows, "€", "\x80       "}};
    for (const auto& c : cases) {
        std::string bytes, reason;
        EXPECT_TRUE(FieldOf(c.place, c.cell, bytes, reason)) << c.cell << reason;
        EXPECT_EQ(bytes, c.bytes);
        EXPECT_EQ(CellOf(c.place, c.bytes), c.cell);
    }
}

TEST(CatalogueTables, RefusesWhatAFieldCanNotHold) {
    struct Case {
        const FieldPlace& place;
        const char *cell, *reason;
    };
    const Case cases[] = {
        {kWindows, "123456789", "9 characters do not fit into 8"},
        {kWindows, "Ω", "no byte of its code page stands for \"Ω\""},
        {kDos, "á", "no byte of its code page stands for \"á\""},  // its byte is the sharp s
        {kDos, "\xFC", "no byte of its code page stands for \"\xFC\""},
        {kDos, "a\tb", "no byte of its code page stands for \"\t\""},
        {kDos, "\\n", "behind a backslash stands xHH or another backslash"},
        {kDos, "\\xG0", "behind a backslash stands xHH or another backslash"},
        {kDos, "\\x1", "behind a backslash stands xHH or another backslash"}};
    for (const auto& c : cases) {
        std::string bytes, reason;
        EXPECT_FALSE(FieldOf(c.place, c.cell, bytes, reason)) << c.cell;
        EXPECT_EQ(reason, c.reason);
    }
}

TEST(CatalogueTables, RecordsOfAnyBytesFindTheirWayBack) {
    std::mt19937 random(570);
    std::string records(20 * KatalogSatz::kLength, ' ');
    for (char& c : records) {
        const auto byte = static_cast<char>(random() % 256);
        if (random() % 3 == 0) c = byte;
    }
    records.replace(3 * KatalogSatz::kLength, KatalogSatz::kLength, KatalogSatz::kLength, ' ');
    Faults faults;
    const std::string text = WriteTable(TableOfRecords("X.csv", records));
    const Table table = ReadTable("X.csv", text, faults);
    EXPECT_EQ(table.rows.size(), 20U);
    EXPECT_EQ(RecordsOf(table, faults), records);
    EXPECT_TRUE(faults.List().empty()) << faults.List().front();
    EXPECT_EQ(WriteTable(TableOfRecords("X.csv", RecordsOf(table, faults))), text);
}

TEST(CatalogueTables, NameTheUsedFieldsAlone) {
    std::string records(2 * KatalogSatz::kLength, ' ');
    records[PlaceOf(KatalogFeld::Field3).offset] = 'x';
    EXPECT_EQ(WriteTable(TableOfRecords("X.csv", records)), "KatTyp,Field3\n,x\n\n");
}

}  // namespace
}  // namespace zandrell::catalogues
