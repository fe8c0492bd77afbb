#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <map>
#include <set>
#include <string>

#include "base/text_encoding.h"
#include "selection/catalogue_index.h"
#include "selection/series_filter.h"
#include "selection/series_reader.h"
#include "support/test_folder.h"

namespace zandrell {
namespace {

namespace fs = std::filesystem;

// Runs the tool; what it reports goes to the file "report" of the folder.
int RunTool(const TestFolder& folder, const std::string& arguments) {
    const std::string report = (folder / "report").string();
    return std::system(
        (std::string(ZANDRELL_MAKE_CATALOGUES) + " " + arguments + " 2> '" + report + "'").c_str());
}

std::string Quoted(const fs::path& path) { return "'" + path.string() + "'"; }

std::map<std::string, std::string> FilesOf(const TestFolder& folder, const std::string& name) {
    std::map<std::string, std::string> files;
    for (const auto& entry : fs::directory_iterator(folder / name)) {
        files[entry.path().filename()] = folder.Read(name + "/" + entry.path().filename().string());
    }
    return files;
}

TEST(MakeCatalogues, TablesAndFilesComeBackByteForByte) {
    const TestFolder folder;
    fs::copy(fs::path(ZANDRELL_SOURCE_DATA) / "catalogues", folder / "source");
    ASSERT_EQ(RunTool(folder, Quoted(folder / "source") + " " + Quoted(folder / "made")), 0);
    ASSERT_EQ(
        RunTool(folder, "--tables " + Quoted(folder / "made") + " " + Quoted(folder / "back")), 0);
    EXPECT_EQ(FilesOf(folder, "back"), FilesOf(folder, "source"));
    for (const auto& [name, bytes] : FilesOf(folder, "made")) {
        folder.CopyStaged(name);
        EXPECT_EQ(folder.Read(name), bytes) << "the staged one is another: " << name;
    }
}

TEST(MakeCatalogues, TheDeliveredSetHoldsWhatSelectionsNeed) {
    const DataFiles files(ZANDRELL_STAGED_DATA);
    const HiddenSeries hidden = ReadHiddenSeries(files);
    SeriesReader reader(files);
    int series = 0, hidden_series = 0;
    std::set<int> sizes;
    for (const int kind : {600, 650, 550, 100, 50, 250, 150}) {
        std::set<std::string_view> makers;
        const IndexFile index = ReadIndex(files, KatalogIndex("QV", kind));
        for (const auto& line : index.lines) {
            ++series;
            hidden_series += Ventp(line.SerieText, kIsHidden, "", hidden);
            makers.insert(MakerOf(line.SerieText));
            sizes.insert(
                reader.SerieLesen(KatalogDateiOf(line.SerieDatei), AddressOf(line) - 2).Units());
        }
        EXPECT_EQ(makers.size(), 3U) << kind;
        EXPECT_TRUE(files.Stamp(std::to_string(kind) + ".bmp")) << kind;
    }
    EXPECT_EQ(series, 40);
    EXPECT_EQ(hidden_series, 1);
    for (const int size : {1, 5, 47, 48}) EXPECT_TRUE(sizes.contains(size)) << size;
    EXPECT_FALSE(sizes.contains(0));
}

constexpr const char* kIndex = "SerieDatei,SerieKennung,SerieText,SerieAdresse\n";

// A catalogue of one maker, one table changed at a time.
struct Refusal {
    std::string file, content, report;
};

TEST(MakeCatalogues, SaysLineAndFieldOfWhatItRefuses) {
    const std::string index = kIndex, head = "KatTyp,KatLeistung,KatAntrieb,KatLamelle\n";
    const Refusal cases[] = {
        {"ULMAK.csv", head + "A,5,1,4\nB,4,1,4\n", "ULMAK.csv:3: KatLeistung: smaller than"},
        {"ULMAK.csv", head + "A,5,5.1,4\n", "ULMAK.csv:2: KatAntrieb: above the capacity"},
        {"ULMAK.csv", head + "A,5,1,\n", "ULMAK.csv:2: KatLamelle: the class needs"},
        {"ULMAK.csv", head + "A,5 kW,1,4\n", "ULMAK.csv:2: KatLeistung: no number: \"5 kW\""},
        {"ULMAK.csv", head + "A,5,-1,4\n", "ULMAK.csv:2: KatAntrieb: below 0"},
        {"ULMAK.csv", head + "A,123456,1,4\n",
         "ULMAK.csv:2: KatLeistung: 6 characters do not fit into 5"},
        {"ULMAK.csv", head + ",5,1,4\n", "ULMAK.csv:2: KatTyp: a unit without a name"},
        {"ULMAK.csv", head + "A,5,1,4\n\nB,6,1,4\n", "ULMAK.csv:4: the unit belongs to no series"},
        {"ULMAK.csv", head + "A,5,1,4\nB,0,,4\n", "ULMAK.csv:3: KatWert, KatWert2, KatLeistung"},
        {"ULMAK.csv", head + "A,5,1\n", "ULMAK.csv:2: 3 cells, but the header has 4"},
        {"ULMAK.csv", head + "\"A,5,1,4\n", "ULMAK.csv:2: a quoted cell does not end"},
        {"ULMAK.csv", "KatTyp,KatPreis\nA,5\n", "ULMAK.csv:1: there is no field KatPreis"},
        {"ULMAK.csv", "KatTyp,KatTyp\nA,B\n", "ULMAK.csv:1: two columns KatTyp"},
        {"ULMAK.csv", "KatTyp,KatLeistung,KatLamelle,KatBasis\nA,5,4,3\n",
         "ULMAK.csv:2: KatBasis: not 0, 1 or 2"},
        {"ULMAK.csv", "", "ULMAK.csv: the file is empty"},
        {"I600.csv", index + "ULM,1,Ulmrain AK,0\n", "I600.csv:2: SerieDatei: not 5 to 7"},
        {"I600.csv", index + "ULMAX,1,Ulmrain AK,0\n", "I600.csv:2: SerieDatei: there is no table"},
        {"I600.csv", index + "ULMAK,,Ulmrain AK,0\n", "I600.csv:2: SerieKennung: empty"},
        {"I600.csv", index + "ULMAK,1,Ulmrain,0\n", "I600.csv:2: SerieText: not a maker"},
        {"I600.csv", index + "ULMAK,1,Ulmrain \"A\",0\n", "I600.csv:2: SerieText: a double quote"},
        {"I600.csv", index + "ULMAK,1,Ulmrain AK,-1\n", "I600.csv:2: SerieAdresse: not a whole"},
        {"I600.csv", index + "ULMAK,1,Ulmrain AK,12345\n", "I600.csv:2: SerieAdresse: not a whole"},
        {"I600.csv", index + "ULMAK,1,Ulmrain AK,7\n", "I600.csv:2: SerieAdresse: no unit behind"},
        {"I600.csv", index + "ULMAK,1,Ulmrain A,0\nULMAK,1,Ulmrain B,1\n",
         "I600.csv:3: SerieAdresse: a unit belongs to another series"},
        {"I600.csv", "SerieDatei\nULMAK\n", "I600.csv:1: the header line is not SerieDatei,Serie"},
        {"I250.csv", index + "ULMAK,1,Ulmrain AK,0\n", "ULMAK.csv:2: KatWert: not above 0"},
        {"I550.csv", index + "PIRNW,1,Pirnwerk P,0\n", "PIRNW.csv:2: KatLeistung: the first"},
        {"Prodhide.csv", "Text\nUlmrain\n\n", "Prodhide.csv:3: a blank text would end the list"},
    };
    for (const auto& c : cases) {
        const TestFolder folder;
        fs::create_directory(folder / "in");
        folder.Write("in/I600.csv", index + "ULMAK,1,Ulmrain AK,0\n");
        folder.Write("in/ULMAK.csv", head + "A,5,1,4\nB,6,1,4\n");
        const std::string run = Quoted(folder / "in") + " " + Quoted(folder / "out");
        ASSERT_EQ(RunTool(folder, run), 0) << folder.Read("report");
        fs::remove_all(folder / "out");
        if (c.file == "I550.csv") folder.Write("in/PIRNW.csv", "KatTyp,KatWert\nP,5\n");
        folder.Write("in/" + c.file, c.content);
        EXPECT_NE(RunTool(folder, run), 0) << c.report;
        EXPECT_NE(("\n" + folder.Read("report")).find("\n" + c.report), std::string::npos)
            << c.report << "\nbut: " << folder.Read("report");
        EXPECT_FALSE(fs::exists(folder / "out")) << "nothing is written";
    }
}

TEST(MakeCatalogues, RefusesFilesThatAreNone) {
    const TestFolder folder;
    const std::string to_tables =
        "--tables " + Quoted(folder.Path()) + " " + Quoted(folder / "back");
    EXPECT_NE(RunTool(folder, to_tables), 0);
    folder.Write("I600.DAT", "ULMAK,1,Ulmrain AK,0\r\n");
    EXPECT_NE(RunTool(folder, to_tables), 0);
    EXPECT_NE(folder.Read("report").find("ULMAKN.rdm: cannot be read"), std::string::npos);
    folder.Write("ulmakn.RDM", std::string(571, ' '));
    EXPECT_NE(RunTool(folder, to_tables), 0);
    EXPECT_EQ(folder.Read("report"), "ulmakn.RDM: ends with a piece of a record, 1 bytes\n");
    EXPECT_FALSE(fs::exists(folder / "back"));
}

}  // namespace
}  // namespace zandrell
