#include "painter/sheet_file.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <array>
#include <cstdio>

#include "painter/sheet_painter.h"
#include "support/test_folder.h"

namespace zandrell {
namespace {

constexpr PageScale kThousandths{0, 0, 1000, 1000};

class SheetFileTest : public testing::Test {
  protected:
    static void SetUpTestSuite() {
        static int count = 1;
        static char name[] = "painter_test";
        static char* arguments[] = {name, nullptr};
        qputenv("QT_QPA_PLATFORM", "offscreen");
        if (QGuiApplication::instance() != nullptr) return;
        static auto* const application = new QGuiApplication(count, arguments);
        ASSERT_NE(application, nullptr);
    }

    SheetFileTest() {
        sheet_.title = "the sheet";
        sheet_.chart_scale = {-75, -200, 2000, 800};
        sheet_.chart.Clear(kWhite, kBlack);
        sheet_.chart.Text(-25, 285, " 20");
        sheet_.chart.Text(1990, 400, "far");
        sheet_.SetScale(kThousandths);
    }

    // What a program of the system says of the written page.
    std::string Said(const std::string& program, const std::string& arguments = "") {
        std::string error;
        const std::string path = (folder_ / "sheet.pdf").string();
        EXPECT_TRUE(WriteSheetPdf(sheet_, path, error)) << error;
        const std::string command = program + " '" + path + "' " + arguments;
        std::string said;
        FILE* pipe = ::popen(command.c_str(), "r");
        std::array<char, 4096> block{};
        while (const std::size_t read = std::fread(block.data(), 1, block.size(), pipe)) {
            said.append(block.data(), read);
        }
        EXPECT_EQ(::pclose(pipe), 0) << command;
        return said;
    }

    // The page on a white image of 2 dots to the point of A4.
    QImage Picture() {
        QImage image(2 * 595, 2 * 842, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        PaintSheet(painter, sheet_, QRectF(image.rect()), 2);
        return image;
    }
    // The smallest rectangle around what is not white, in thousandths of the page.
    static QRectF Inked(const QImage& image, const QRect& part) {
        QRect inked;
        for (int y = part.top(); y <= part.bottom(); ++y) {
            for (int x = part.left(); x <= part.right(); ++x) {
                if (qGray(image.pixel(x, y)) < 200) inked |= QRect(x, y, 1, 1);
            }
        }
        return {1000.0 * inked.left() / image.width(), 1000.0 * inked.top() / image.height(),
                1000.0 * inked.width() / image.width(), 1000.0 * inked.height() / image.height()};
    }

    Sheet sheet_;
    TestFolder folder_;
};

TEST_F(SheetFileTest, PapersTextsAndFonts) {
    struct Case {
        const char* paper;
        bool landscape;
        const char* size;  // points
    };
    const Case cases[] = {{"A4", false, "595 x 842 pts"},
                          {"A4", true, "842 x 595 pts"},
                          {"A3", false, "842 x 1191 pts"},
                          {"A2", true, "1684 x 1191 pts"},
                          {"Folio", false, "595 x 842 pts"}};
    sheet_.Text(41, 37, "Projekt :Kältebau §5 m³/h");
    for (const Case& c : cases) {
        sheet_.paper = c.paper;
        sheet_.landscape = c.landscape;
        const std::string about = Said("pdfinfo");
        EXPECT_NE(about.find(c.size), std::string::npos) << c.paper << "\n" << about;
        EXPECT_NE(about.find("Pages:           1"), std::string::npos) << about;
        EXPECT_NE(about.find("the sheet"), std::string::npos);
    }
    const std::string text = Said("pdftotext", "-");
    EXPECT_NE(text.find("Projekt :Kältebau §5 m³/h"), std::string::npos) << text;
    EXPECT_NE(text.find("far"), std::string::npos) << text;
    const std::string fonts = Said("pdffonts");
    // Columns: embedded, subset, with the characters behind its glyphs.
    EXPECT_NE(fonts.find(" yes no  yes "), std::string::npos) << fonts;
    EXPECT_EQ(fonts.find(" no  no "), std::string::npos) << fonts;
}

TEST_F(SheetFileTest, LongTextsKeepToTheirRoom) {
    const std::string long_text(200, 'W');
    sheet_.Text(41, 300, "T" + long_text, 640);
    sheet_.Text(41, 400, "F 123456789 kW " + std::string(40, 'x'), 400, TextFit::Shrink);
    sheet_.Text(41, 500, "line\r\nbreak\tand tab");
    const QImage image = Picture();
    const auto row = [&](int y) { return QRect(0, 2 * y, image.width(), 40); };
    EXPECT_LE(Inked(image, row(300 * 842 / 1000)).right(), 641);
    EXPECT_LE(Inked(image, row(400 * 842 / 1000)).right(), 401);
    const std::string text = Said("pdftotext", "-layout -");
    EXPECT_NE(text.find("W…"), std::string::npos) << text;
    EXPECT_NE(text.find("F 123456789 kW " + std::string(40, 'x')), std::string::npos)
        << "a figure stays whole: " << text;
    EXPECT_NE(text.find("break and tab"), std::string::npos) << text;
}

TEST_F(SheetFileTest, ProcessIsClippedToTheFrameAndTextsToThePage) {
    sheet_.SetScale(sheet_.chart_scale);
    sheet_.SetOnChart(true);
    sheet_.SetLineWidth(6);
    sheet_.Line(500, -190, 500, 790);
    sheet_.Line(-70, 300, 1999, 300);
    const QImage image = Picture();
    const QRectF inked = Inked(image, image.rect());
    // The frame's top at 0 of -200..800 is 200 thousandths, its foot at 580 is 780.
    EXPECT_NEAR(inked.top(), 200, 2);
    EXPECT_NEAR(inked.bottom(), 780, 2);
    EXPECT_LT(inked.right(), 990);
    // The scale of temperatures stands to the left of the frame.
    EXPECT_LT(inked.left(), 1000.0 * 75 / 2075);
}

TEST_F(SheetFileTest, ALogoFillsItsCornerAtMost) {
    QImage logo(1200, 300, QImage::Format_RGB32);
    logo.fill(Qt::black);
    const std::string path = (folder_ / "logo.png").string();
    ASSERT_TRUE(logo.save(QString::fromStdString(path)));
    sheet_.Picture(650, 10, 940, 92, path);
    QRectF inked = Inked(Picture(), QRect(0, 0, 1190, 300));
    EXPECT_NEAR(inked.left(), 650, 2);
    EXPECT_NEAR(inked.top(), 10, 2);
    EXPECT_NEAR(inked.right(), 940, 2);
    EXPECT_LT(inked.bottom(), 92);

    // A small one keeps its size of 96 dots to the inch: 96 dots are 72 of 595 points.
    logo = logo.copy(0, 0, 96, 48);
    ASSERT_TRUE(logo.save(QString::fromStdString(path)));
    inked = Inked(Picture(), QRect(0, 0, 1190, 300));
    EXPECT_NEAR(inked.width(), 1000.0 * 72 / 595, 2);

    folder_.Write("logo.png", "\x89PNG and nothing behind it");
    EXPECT_LT(Inked(Picture(), QRect(0, 0, 1190, 300)).width(), 3) << "the corner stays blank";
}

TEST_F(SheetFileTest, AFileThatCannotBeWrittenSaysWhyAndHarmsNothing) {
    std::string error;
    EXPECT_FALSE(WriteSheetPdf(sheet_, "/no/such/folder/sheet.pdf", error));
    EXPECT_TRUE(error.starts_with("/no/such/folder/sheet.pdf: ")) << error;
    EXPECT_EQ(error.find('\n'), std::string::npos);
    std::filesystem::create_directory(folder_ / "folder.pdf");
    EXPECT_FALSE(WriteSheetPdf(sheet_, (folder_ / "folder.pdf").string(), error));
    EXPECT_TRUE(std::filesystem::is_directory(folder_ / "folder.pdf"));
}

}  // namespace
}  // namespace zandrell
