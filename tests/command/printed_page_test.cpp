// The page as a user gets it: a PDF of the verb print, read back by other programs.

#include <array>
#include <cstdio>
#include <cstdlib>
#include <set>
#include <sstream>

#include "base/number_text.h"
#include "command/sheet_text.h"
#include "gtest/gtest.h"
#include "support/test_folder.h"

namespace zandrell {
namespace {

struct Word {
    double left = 0, top = 0, right = 0, bottom = 0;
    std::string text;
};

class PrintedPage : public ::testing::Test {
  protected:
    PrintedPage() {
        folder_.CopyWholeSet();
        std::filesystem::remove(folder_ / "QV_ACT.dat");
    }

    // What a program says; a failure of the program fails the test unless it is expected.
    std::string Said(const std::string& command, bool fails = false) {
        std::string said;
        FILE* pipe = ::popen((command + " 2>&1").c_str(), "r");
        std::array<char, 4096> block{};
        while (const std::size_t read = std::fread(block.data(), 1, block.size(), pipe)) {
            said.append(block.data(), read);
        }
        EXPECT_EQ(::pclose(pipe) != 0, fails) << command << '\n' << said;
        return said;
    }
    std::string Pdf() const { return (folder_ / "sheet.pdf").string(); }

    void Print(const std::string& script, const std::string& options = "") {
        folder_.Write("script.txt", script);
        Said(std::string(ZANDRELL_CALC) + " --data '" + folder_.Path().string() + "' print -o '" +
             Pdf() + "' --form '" + (folder_ / "script.txt").string() + "' " + options);
    }
    std::string Text() { return Said("pdftotext -layout '" + Pdf() + "' -"); }

    // Every word with its box, in points from the upper left corner of the page.
    std::vector<Word> Words() {
        std::istringstream lines(Said("pdftotext -bbox '" + Pdf() + "' -"));
        std::vector<Word> words;
        for (std::string line; std::getline(lines, line);) {
            Word word;
            std::array<char, 512> text{};
            const int read = std::sscanf(
                line.c_str(), " <word xMin=\"%lf\" yMin=\"%lf\" xMax=\"%lf\" yMax=\"%lf\">%511[^<]",
                &word.left, &word.top, &word.right, &word.bottom, text.data());
            if (read != 5) continue;
            word.text = text.data();
            words.push_back(word);
        }
        return words;
    }

    TestFolder folder_;
};

constexpr const char* kTwoStates =
    "set LuftM1 1000\nset LuftM2 500\nset Temp1 30\nset relF1 50\nset Temp2 21\nset relF2 60\n";
constexpr const char* kPlantScript =
    "set vhAnlage 10000\nset aussenAnt 3\nreturn aussenAnt\nset tabLuft 26\nset PHIAbluft 50\n"
    "set Taus 32\nset PhiAussen 40\nset tKA 12\nset phiKanal 95\nset TZuluft 18\n"
    "set PHIZuluft 64\nset dtVent1 1\nset dtVent2 0.5\nclick AnlageButt\n";

struct PageOfMode {
    const char* button;
    std::vector<const char*> texts;
};

// The figures are those of the process tests for the same states.
const PageOfMode kPages[] = {
    {"ZAButt", {"Air Flow Rate /[m³/h]: 1000", "Capacity Cooler /[kW] :"}},
    {"BearButt", {"Temperature 1 /[m³/h]: 30", "Enthalpy 2 /[m³/h]: 44.7", "Capacity Total"}},
    {"MischButt", {"Air Flow Rate /[m³/h]: 1000"}},
    {"Kuehl_start", {"Temperature 2 /[m³/h]: 21", "Capacity Latent"}},
    {"Heiz_start", {"Rel. Humidity 2 /[m³/h]:", "Capacity Sensible"}},
    {"Humid_W_Start", {"Humidity Ratio 2 /[m³/h]:", "Water /[kg/h] :"}},
    {"Humid_D_Start", {"Temperature 2 /[m³/h]: 30", "Water /[kg/h] :"}},
    {"AnlageButt", {"Air Flow Rate Total", "Capacity Heater", "Capacity Humidifier"}},
};

TEST_F(PrintedPage, EveryModeTellsItsFigures) {
    for (const PageOfMode& page : kPages) {
        Print(std::string(kTwoStates) + "set Proj_T Halle 7\nset vhAnlage 1000\nclick " +
              page.button + "\n");
        const std::string text = Text();
        EXPECT_NE(text.find("Project :Halle 7"), std::string::npos) << page.button;
        for (const char* expected : page.texts) {
            EXPECT_NE(text.find(expected), std::string::npos)
                << page.button << ": " << expected << "\n"
                << text;
        }
        EXPECT_LT(std::filesystem::file_size(Pdf()), 200U * 1024) << page.button;
    }
}

bool Overlap(const Word& a, const Word& b) {
    constexpr double kTouch = 1;  // points: boxes are those of lines, letters are lower
    return a.left < b.right - kTouch && b.left < a.right - kTouch && a.top < b.bottom - 2.5 &&
           b.top < a.bottom - 2.5;
}

// Header and figures; within the chart it is the chart that places its texts.
TEST_F(PrintedPage, NothingOverlapsAndNothingIsCutOff) {
    struct Case {
        const char* options;
        double width, height;  // points
    };
    const Case cases[] = {{"", 595, 842},
                          {"--landscape", 842, 595},
                          {"--paper A3", 842, 1191},
                          {"--paper A2 --landscape", 1684, 1191},
                          {"--landscape --style 1", 842, 595}};
    const std::string long_texts =
        "set Proj_T " + std::string(200, 'W') + "\nset Schr_T " + std::string(60, 'x') + "\n";
    for (const Case& c : cases) {
        for (const char* process : {kPlantScript,
                                    "set LuftM1 123456\nset Temp1 30\nset relF1 50\n"
                                    "set Temp2 21\nset relF2 60\nclick BearButt\n"}) {
            Print(long_texts + process, c.options);
            const auto words = Words();
            ASSERT_GT(words.size(), 60U);
            for (const Word& word : words) {
                EXPECT_GE(word.left, 0) << c.options << word.text;
                EXPECT_LE(word.right, c.width) << c.options << word.text;
                EXPECT_LE(word.bottom, c.height) << c.options << word.text;
            }
            const auto outside = [&](const Word& word) {
                return word.top < 0.16 * c.height || word.top > 0.795 * c.height;
            };
            for (std::size_t i = 0; i < words.size(); ++i) {
                for (std::size_t k = i + 1; k < words.size(); ++k) {
                    if (!outside(words[i]) || !outside(words[k])) continue;
                    EXPECT_FALSE(Overlap(words[i], words[k]))
                        << c.options << ": " << words[i].text << " | " << words[k].text;
                }
            }
        }
    }
}

// The suite's page ends before the labels of the last curves.
TEST_F(PrintedPage, AnExactPageHasTheLabelsAtTheRightEdge) {
    const struct {
        const char *settings, *options;
        double width;  // points
        bool labelled;
    } rows[] = {{"1.013,-20,40,0,40,0,0,1,1\n", "", 595, true},
                {"1.013,-20,40,0,40,0,0,1,1\n", "--landscape", 842, true},
                {"1.013,-20,40,0,40,0,0,1\n", "", 595, false}};
    for (const auto& row : rows) {
        folder_.Write("qv_par.dat", row.settings);
        Print(kPlantScript, row.options);
        std::set<std::string> texts;
        for (const Word& word : Words()) {
            texts.insert(word.text);
            EXPECT_LE(word.right, row.width) << word.text;
        }
        EXPECT_TRUE(texts.contains("70%"));
        for (const char* label : {"90%", "100%"}) {
            EXPECT_EQ(texts.contains(label), row.labelled) << label << row.options;
        }
    }
}

TEST_F(PrintedPage, BothKindsZoomedAndDarkPrintLightWithEmbeddedFonts) {
    for (const char* settings : {"1.013,-20,40,0,40,0,0,0\n", "1.013,-20,40,0,40,0,1,0\n"}) {
        folder_.Write("qv_par.dat", settings);
        Print(std::string(kPlantScript) +
              "click Command3D6\npointer press 300 100\npointer move 900 350\n"
              "pointer release 900 350\npointer move 500 200\npointer press 500 200\n");
        EXPECT_LT(std::filesystem::file_size(Pdf()), 200U * 1024) << settings;
        const std::string fonts = Said("pdffonts '" + Pdf() + "'");
        EXPECT_EQ(fonts.find(" no  no "), std::string::npos) << fonts;
        EXPECT_NE(fonts.find(" yes "), std::string::npos) << fonts;
        Said("pdftoppm -r 20 -gray -singlefile '" + Pdf() + "' '" + (folder_ / "page").string() +
             "'");
        const std::string picture = folder_.Read("page.pgm");
        double sum = 0;
        for (const char c : picture) sum += static_cast<unsigned char>(c);
        EXPECT_GT(sum / static_cast<double>(picture.size()), 230) << "the paper is light";
    }
}

TEST_F(PrintedPage, TheTableOfStatesIsASecondPage) {
    for (const auto& [script, options, pages] : {std::tuple{kPlantScript, "", "1"},
                                                 {kPlantScript, "--states", "2"},
                                                 {kPlantScript, "--states --landscape", "2"},
                                                 {"", "--states", "1"}}) {  // no process, no states
        Print(script, options);
        const std::string info = Said("pdfinfo '" + Pdf() + "' | tr -d ' '");
        EXPECT_NE(info.find(std::string("Pages:") + pages), std::string::npos) << options << info;
        const std::string text = Text();
        const bool table = *pages == '2';
        for (const char* word : {"State Table", "Density /[kg/m³]", "Pressure /[bar]"}) {
            EXPECT_EQ(text.find(word) != std::string::npos, table) << options << word;
        }
    }
}

// However large the plant is, by which its figures are cut.
TEST_F(PrintedPage, BothPagesTellTheSameCondensate) {
    for (const char* flow : {"500", "10000", "40000", "400000"}) {
        Print(std::string(kPlantScript) + "set vhAnlage " + flow + "\nreturn vhAnlage\n",
              "--states --convention exact");
        const std::string text = Text(), word = "Water /[kg/h] :";
        const auto place = text.find(word);
        ASSERT_NE(place, std::string::npos) << text;
        std::string condensate;
        std::istringstream(text.substr(place + word.size())) >> condensate;
        EXPECT_GT(ParsedNumber(condensate), 0) << flow;
        std::istringstream row(text.substr(text.find("Water to Air", place)));
        std::string cells;
        std::getline(row, cells);
        EXPECT_NE((cells + " ").find(" -" + condensate + " "), std::string::npos)
            << flow << cells << condensate;
    }
}

TEST_F(PrintedPage, ALogoThatCannotBeReadIsLeftOut) {
    for (const bool broken : {false, true}) {
        if (broken) folder_.Write("zdsample.jpg", "\xFF\xD8\xFF and nothing behind it");
        Print("click ZAButt\n");
        const std::string pictures = Said("pdfimages -list '" + Pdf() + "'");
        EXPECT_EQ(pictures.find("image") != std::string::npos, !broken) << pictures;
    }
}

TEST_F(PrintedPage, AScriptPrintsWithoutTheToolkitInItsProgram) {
    folder_.Write("script.txt", std::string(kPlantScript) + "clock 2026-11-21\nprint " + Pdf() +
                                    "\nprint /no/such/folder/x.pdf\ndump DialogMode\n");
    const std::string said =
        Said(std::string(ZANDRELL_CALC) + " --data '" + folder_.Path().string() + "' form '" +
             (folder_ / "script.txt").string() + "'");
    EXPECT_NE(Text().find("Capacity Heater"), std::string::npos);
    EXPECT_NE(said.find("/no/such/folder/x.pdf: "), std::string::npos) << said;
}

TEST_F(PrintedPage, WrongUseIsOneClearLine) {
    const std::string calc =
        std::string(ZANDRELL_CALC) + " --data '" + folder_.Path().string() + "' ";
    for (const char* wrong :
         {"print -o x.png", "print -o x.pdf --paper B5", "print", "print -o x.pdf --style 2",
          "print -o /no/such/x.pdf", "print -o x.pdf --form /no/script"}) {
        const std::string said = Said(calc + wrong, true);
        EXPECT_TRUE(said.starts_with("zandrell-calc: ")) << wrong << ": " << said;
        EXPECT_EQ(std::count(said.begin(), said.end(), '\n'), 1) << said;
    }
}

TEST(SheetText, APageComesBackAsItWas) {
    Sheet sheet;
    sheet.title = "Halle \"7\" §\n";
    sheet.paper = "A3";
    sheet.landscape = true;
    sheet.chart_scale = {-75, -200, 2000, 800};
    sheet.chart.Clear(kWhite, kBlack);
    sheet.chart.SetLineWidth(6);
    sheet.chart.Line(1.25, 2, 3, 1.0 / 3, kDarkRed);
    sheet.chart.SetFontSize(10);
    sheet.chart.Text(5, 6, "°C");
    sheet.chart.Dot(7, 8, kGrey);
    sheet.chart.Circle(1, 2, 3, kBlack);
    sheet.SetScale({0, 0, 210, 297});
    sheet.SetBold(true);
    sheet.SetOnChart(true);
    sheet.Text(1, 2, "text", 100, TextFit::Shrink);
    sheet.Circle(4, 5, 6);
    sheet.Line(1, 2, 3, 4);
    sheet.Picture(1, 2, 3, 4, "logo.jpg");
    const std::string text = SheetAsText(sheet);
    Sheet read;
    ASSERT_TRUE(SheetFromText(text, read));
    EXPECT_EQ(SheetAsText(read), text);
    EXPECT_EQ(read.Items().size(), 4U);
    EXPECT_EQ(read.Items()[0].fit, TextFit::Shrink);
    EXPECT_EQ(read.chart.Operations()[0].y2, 1.0 / 3);
    for (const char* wrong : {"", "{", "[]", "{}", "{\"title\":1}"}) {
        EXPECT_FALSE(SheetFromText(wrong, read)) << wrong;
    }
}

}  // namespace
}  // namespace zandrell
