#include "printing/date_text.h"

#include <gtest/gtest.h>

namespace zandrell {
namespace {

// The matrix of shared codes and styles on 21 November 2026. A style asked for wins over the code
// because it is tested later; code 4 and style 4 differ on purpose.
TEST(DateText, CodesAndStyles) {
    struct Case {
        const char* code;
        int style;
        const char* text;
    };
    const Case cases[] = {
        {"", 0, "21.11.2026"},  {"1", 0, "11-21-2026"}, {"2", 0, "11-21-2026"},
        {"3", 0, "11/21/2026"}, {"4", 0, "11/21/2026"}, {"5", 0, "21.11.2026"},
        {"", 2, "11-21-2026"},  {"", 3, "11/21/2026"},  {"", 4, "21/11/2026"},
        {"1", 3, "11/21/2026"}, {"2", 4, "21/11/2026"}, {"3", 2, "11/21/2026"},
        {"4", 2, "11/21/2026"}, {"4", 3, "11/21/2026"}, {"4", 4, "21/11/2026"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(DateInStyle("11-21-2026", c.code, c.style), c.text) << c.code << " " << c.style;
        EXPECT_EQ(DateInStyle("2026-11-21",
                              c.code == std::string("1") && c.style == 0 ? "" : c.code, c.style),
                  c.code == std::string("1") && c.style == 0 ? "21.11.2026" : c.text)
            << "year first: " << c.code << " " << c.style;
    }
}

TEST(DateText, ShortRuntimeTextsAreNoFault) {
    for (const char* text : {"", "1", "2026", "11-2"}) EXPECT_NO_THROW(DateInStyle(text, "3", 0));
}

TEST(DateText, TakesTheClockOfAScript) {
    SharedValues shared;
    shared.clock_day = ReadDay("2027-03-05");
    FormatDate(0, shared);
    EXPECT_EQ(shared.DateText, "05.03.2027");
    EXPECT_EQ(RuntimeDate(shared), "03-05-2027");
    for (const char* bad :
         {"2027-02-29", "2027-13-01", "27-01-01", "2027/01/01", "2027-1-1 ", ""}) {
        EXPECT_FALSE(ReadDay(bad)) << bad;
    }
    EXPECT_TRUE(ReadDay("2028-02-29"));
}

}  // namespace
}  // namespace zandrell
