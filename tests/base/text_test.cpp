#include <gtest/gtest.h>

#include "base/delimited_text.h"
#include "base/text_encoding.h"
#include "base/text_helpers.h"

namespace zandrell {
namespace {

TEST(TextEncoding, ReadsBothEncodingsAndNeverLosesAText) {
    EXPECT_EQ(DecodeText("W\xE4rme 20\xB0\x43 \x80"), "Wärme 20°C €");
    EXPECT_EQ(DecodeText("\xEF\xBB\xBFWärme"), "Wärme");
    const struct {
        const char* text;
        const char* bytes;
    } cases[] = {
        {"Kühler", "K\xFChler"},
        {"濕空氣", "濕空氣"},  // the code page cannot hold it
        {"Ã¼", "Ã¼"},          // its two bytes would be taken for one umlaut
        {"bad \xFF", "bad \xFF"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(EncodeText(c.text), c.bytes);
        if (std::string_view(c.text) != "bad \xFF") {
            EXPECT_EQ(DecodeText(EncodeText(c.text)), c.text);
        }
    }
    // A truncated sequence, an overlong form and a surrogate are no UTF-8.
    EXPECT_EQ(DecodeText("\xC3"), "Ã");
    EXPECT_EQ(DecodeText("\xC0\xAF"), "À¯");
    EXPECT_EQ(DecodeText("\xED\xA0\x80"), "í\xC2\xA0€");
}

TEST(TextHelpers, RemoveOnlyTheFirstOfEachCharacter) {
    std::string text = "A B C";
    EXPECT_EQ(MakeFileNameSafe(0, text), "AB C");
    text = "a-b-c";
    EXPECT_EQ(MakeFileNameSafe(2, text), "ab-c");
    text = "3\" pipe \"x\"";
    EXPECT_EQ(MakeFileNameSafe(1, text), "3'' pipe \"x\"");
    EXPECT_EQ(text, "3'' pipe \"x\"");
}

TEST(TextHelpers, DosCharactersMoveToTheCodePage) {
    const int moved[][2] = {{129, 252}, {132, 228}, {142, 196}, {148, 246}, {153, 214},
                            {154, 220}, {225, 223}, {248, 176}, {34, -1},   {65, 65}};
    for (const auto& [from, to] : moved) EXPECT_EQ(OemCharToAnsi(from), to);
    EXPECT_EQ(OemTextToAnsi(std::string_view("K\x81hler \"2\"\0 \xF8\x43", 14)), "Kühler ''2'' °C");
}

TEST(DelimitedText, ItemsComeOneAfterAnother) {
    DelimitedReader reader("  \"a, b\" junk, plain  ,12\r\n\r\n\"\",#true#,,3 x\n\"open");
    std::string item;
    for (const char* expected : {"a, b", "plain", "12", "", "#true#", "", "3 x", "open"}) {
        ASSERT_TRUE(reader.ReadText(item));
        EXPECT_EQ(item, expected);
    }
    EXPECT_FALSE(reader.ReadText(item));
    EXPECT_EQ(item, "open") << "nothing read, nothing changed";
}

TEST(DelimitedText, WhatIsWrittenReadsBack) {
    DelimitedWriter writer;
    writer.Number(0.95).Number(-20).Boolean(true).EndLine().Text("Küche, 2\" 'x'").EndLine();
    EXPECT_EQ(writer.Result(), ".95,-20,#TRUE#\r\n\"Küche, 2'' 'x'\"\r\n");
    DelimitedReader reader(writer.Result());
    double pressure = 0, t = 0;
    bool flag = false;
    std::string text;
    EXPECT_TRUE(reader.ReadNumber(pressure) && reader.ReadNumber(t) && reader.ReadBoolean(flag) &&
                reader.ReadText(text));
    EXPECT_EQ(pressure, 0.95);
    EXPECT_EQ(t, -20);
    EXPECT_TRUE(flag);
    EXPECT_EQ(text, "Küche, 2'' 'x'");
    int whole = 9;
    DelimitedReader hostile("1e300");
    EXPECT_TRUE(hostile.ReadInteger(whole));
    EXPECT_EQ(whole, 9);
}

}  // namespace
}  // namespace zandrell
