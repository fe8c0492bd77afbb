#include "printing/page_printer.h"

#include "printing_session.h"

namespace zandrell {
namespace {

constexpr PageScale kUnit{0, 0, 1000, 1000};

// A page of 1000 by 1000 units, so that places read as thousandths.
struct HeaderPage {
    PrintingSession session;
    Sheet sheet;

    void Print(int style, const std::string& logo = "", int orientation = 1) {
        session.shared.HeaderStyle = style;
        session.shared.ProjectTitle = "Halle 7";
        session.shared.ProjectRemark = "Angebot";
        PagePrinter(sheet, session.shared, session.captions, logo)
            .PrintPageHeader("the title", "1", 1000, 1000, orientation);
    }
};

TEST(PageHeader, FramedStyleIsTheOneForAllStylesButOne) {
    for (const int style : {0, 2, -1}) {
        HeaderPage page;
        page.Print(style);
        std::vector<double> rules;
        for (const SheetItem& item : page.sheet.Items()) {
            EXPECT_FALSE(item.bold);
            EXPECT_EQ(item.font_size, 8);
            if (item.kind != SheetItem::Kind::Line) continue;
            rules.push_back(item.y1);
            EXPECT_DOUBLE_EQ(item.x1, 40);
            EXPECT_DOUBLE_EQ(item.x2, 940);
        }
        EXPECT_EQ(rules, (std::vector<double>{5, 96, 135}));
        EXPECT_EQ(TextAt(page.sheet, kUnit, 41, 5), "Zandrell 10.11.2 - sheet");
        EXPECT_EQ(TextAt(page.sheet, kUnit, 41, 22), "company : Kältebau Nord  ");
        EXPECT_EQ(TextAt(page.sheet, kUnit, 41, 37), "project :Halle 7");
        EXPECT_EQ(TextAt(page.sheet, kUnit, 41, 52), "remark : Angebot");
        EXPECT_EQ(TextAt(page.sheet, kUnit, 41, 100), "date :21.11.2026");
        EXPECT_EQ(TextAt(page.sheet, kUnit, 850, 116), "page :1");
        EXPECT_EQ(TextAt(page.sheet, kUnit, 41, 116), "the title");
        EXPECT_EQ(page.sheet.Items().size(), 10U);
    }
}

TEST(PageHeader, ShortStyle) {
    HeaderPage page;
    page.Print(1, "logo.jpg");
    EXPECT_EQ(TextAt(page.sheet, kUnit, 100, 100), "the title");
    EXPECT_EQ(TextAt(page.sheet, kUnit, 100, 120), "company : Kältebau Nord  -  page : 1");
    EXPECT_EQ(TextAt(page.sheet, kUnit, 100, 140), "project  : Halle 7");
    EXPECT_EQ(TextAt(page.sheet, kUnit, 100, 160), "remark : Angebot");
    ASSERT_EQ(page.sheet.Items().size(), 4U);
    EXPECT_TRUE(page.sheet.Items()[0].bold);
    EXPECT_FALSE(page.sheet.Items()[1].bold);
}

TEST(PageHeader, TitlesEndInFrontOfTheLogo) {
    HeaderPage with, without;
    with.Print(0, "logo.jpg");
    without.Print(0);
    const auto room = [](const Sheet& sheet, double y) {
        for (const SheetItem& item : sheet.Items()) {
            if (item.kind == SheetItem::Kind::Text && item.y1 == y) return item.room_right;
        }
        return 0.0;
    };
    EXPECT_LT(room(with.sheet, 37), 650);
    EXPECT_DOUBLE_EQ(room(without.sheet, 37), 940);
    const SheetItem& logo = with.sheet.Items().back();
    ASSERT_EQ(logo.kind, SheetItem::Kind::Picture);
    EXPECT_DOUBLE_EQ(logo.x1, 650);
    EXPECT_DOUBLE_EQ(logo.y1, 10);
    EXPECT_LE(logo.y2, 96);  // above the second rule
}

TEST(PageHeader, PageSizesAndOrientation) {
    struct Case {
        const char* paper;
        int orientation;
        double width, height;
    };
    const Case cases[] = {{"A4", 1, 210, 297}, {"A4", 2, 297, 210}, {"A3", 0, 297, 420},
                          {"A2", 3, 594, 420}, {"B9", 1, 210, 297}, {"", 1, 210, 297}};
    for (const Case& c : cases) {
        PrintingSession session;
        Sheet sheet;
        sheet.paper = c.paper;
        PagePrinter(sheet, session.shared, session.captions, "")
            .PrintPageHeader("t", "1", 0, 0, c.orientation);
        const PageScale whole{0, 0, c.width, c.height};
        EXPECT_EQ(TextAt(sheet, whole, 0.041 * c.width, 0.116 * c.height), "t") << c.paper;
    }
}

TEST(PageHeader, TwoColumns) {
    struct Case {
        const char* text;
        const char* left;
        const char* right;
    };
    const Case cases[] = {{"alone", "alone", "-"},
                          {"left§$&right", "left", "right"},
                          {"left§$&", "left", ""},
                          {"§$&right", "", "right"},
                          {"a§$&b§$&c", "a", "b§$&c"}};
    for (const Case& c : cases) {
        PrintingSession session;
        Sheet sheet;
        sheet.SetScale(kUnit);
        PagePrinter(sheet, session.shared, session.captions, "")
            .PrintTwoColumns(41, 5, c.text, 220, 940);
        EXPECT_EQ(TextAt(sheet, kUnit, 41, 5), c.left) << c.text;
        EXPECT_EQ(TextAt(sheet, kUnit, 261, 5), c.right) << c.text;
    }
}

}  // namespace
}  // namespace zandrell
