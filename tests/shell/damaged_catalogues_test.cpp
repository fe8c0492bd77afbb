// The selection window over catalogues that are not there, cut off or written over.
#include <gtest/gtest.h>

#include "selection_session.h"

namespace zandrell {
namespace {

using selection_test::Cooler;
using selection_test::EndMark;

Json Cells(const Json& dump, const char* grid) { return dump.at(grid).at("cells"); }

TEST(DamagedCatalogues, AreNamedWhereTheyAreMissing) {
    SelectionSession session;
    const auto dumps = session.Run(
        "share KatalogArt 600\nopen\ndump\nset search ulm\nclick GoButt\ndump StatusLab\n");
    ASSERT_EQ(dumps.size(), 2U);
    for (const Json& dump : dumps) {
        EXPECT_EQ(dump.at("StatusLab").at("text"),
                  "The file " + (session.folder / "I600.DAT").string() + " cannot be read");
    }
    EXPECT_EQ(Cells(dumps[0], "KatalogSpread").size(), 1U);
}

// A file that was cut off or written over: what is there is shown, nothing that is no number
// becomes one, and nothing behind the end is read.
TEST(DamagedCatalogues, ShowWhatTheyStillHold) {
    SelectionSession session;
    const std::string whole = Cooler("AK 1", "5");
    std::string noise(2 * KatalogSatz::kLength, '\0');
    for (std::size_t i = 0; i < noise.size(); ++i) noise[i] = static_cast<char>(i * 37 + 11);
    session.folder.Write("CUTOFN.rdm", whole + Cooler("AK 2", "9").substr(0, 160));
    session.folder.Write("NOISEN.rdm", noise);
    session.folder.Write("NANANN.rdm", Cooler("AK 4", "nan") + Cooler("AK 5", "1e308") + EndMark());
    session.folder.Write("I600.DAT",
                         "CUTOF,1,Ulm cut,0\nCUTOF,1,Ulm far,9999\nNOISE,1,Ulm noise,0\n"
                         "NANAN,1,Ulm nan,0\nCUTOF,1,Ulm minus,-7\nCUTOF,1,Ulm text,abc\n\"open");
    const std::string start = "share KatalogArt 600\nshare QoSoll 10\nshare LeistFaktor 1\nopen\n";
    for (int row = 1; row <= 6; ++row) {
        const Json dump = session.RunOnce(start + "pick KatalogSpread " + std::to_string(row) +
                                          " 3\nopen\nmove KatalogSpread " + std::to_string(row) +
                                          "\npick Venttab 1 1\nclick Command3D2\ndump\n");
        const Json cells = Cells(dump, "KatalogSpread");
        ASSERT_GE(cells.size(), 7U);
        if (row == 1) {
            EXPECT_EQ(Cells(dump, "Venttab")[1][2], " 5") << "the unit in front of the cut";
            EXPECT_EQ(Cells(dump, "Venttab")[3][1], "") << "nothing behind it";
        }
        for (const Json& line : Cells(dump, "Venttab")) {
            for (const int column : {2, 4, 5}) {
                const std::string figure = line[static_cast<std::size_t>(column)];
                EXPECT_EQ(figure.find("inf"), std::string::npos) << row;
                EXPECT_TRUE(row == 3 || figure.find("nan") == std::string::npos) << row << figure;
            }
        }
        for (const Json& line : cells) {
            EXPECT_EQ(line[1].get<std::string>().find("na"), std::string::npos) << line;
        }
    }
}

}  // namespace
}  // namespace zandrell
