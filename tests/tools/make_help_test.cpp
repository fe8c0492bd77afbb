// The keeper of the help texts: what becomes of a source, and what a slip in one is answered with.

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

#include "support/test_folder.h"

namespace zandrell {
namespace {

// Every topic that a source needs, with a text for one of them.
std::string Source(const std::string& settings) {
    std::string source = "@ Settings\n" + settings + "\n";
    for (const char* topic : {"Software", "ChartAndReadOut", "ProjectData", "Component",
                              "SelectSeries", "SetOfValues", "AirTreatment"}) {
        source += std::string("@ ") + topic + "\ntext\n";
    }
    return source;
}

class MakeHelp : public ::testing::Test {
  protected:
    int Make(const std::string& source) {
        std::filesystem::create_directories(folder_ / "in");
        folder_.Write("in/XYZ.txt", source);
        const std::string command = std::string("'") + ZANDRELL_MAKE_HELP + "' '" +
                                    (folder_ / "in").string() + "' '" + folder_.Path().string() +
                                    "' 2>'" + (folder_ / "said").string() + "'";
        return std::system(command.c_str());
    }
    // The record of a number from 1.
    std::string Record(std::size_t number) {
        return folder_.Read("Zandhelp.XYZ").substr((number - 1) * 128, 128);
    }

    TestFolder folder_;
};

TEST_F(MakeHelp, JoinsLinesAndKeepsActsOut) {
    ASSERT_EQ(Make(Source("# Head\nOne line\ngoes on.\n\nNext.\n- item\nof two\n- item\n"
                          "> click ZAButt\nIt is {absF1|9.88} g/kg.")),
              0)
        << folder_.Read("said");
    const std::string expected =
        "#Head\r\nOne line goes on.\r\n\r\nNext.\r\n- item of two\r\n- item It is 9.88 g/kg.";
    EXPECT_EQ(Record(41).substr(0, expected.size() + 1), expected + " ");
    EXPECT_EQ(Record(42), std::string(128, ' '));
    EXPECT_EQ(folder_.Read("Zandhelp.XYZ").size(), 210U * 128);
}

TEST_F(MakeHelp, ASlipIsReportedWithItsPlace) {
    struct Slip {
        std::string source;
        const char* said;
    };
    const Slip slips[] = {
        {"words\n" + Source("text"), "XYZ.txt:1: text in front of the first topic"},
        {Source("{absF1 9.88}"), "XYZ.txt:2: a figure is {CONTROL|figure}"},
        {Source("text\n@ Setings"), "XYZ.txt:3: there is no topic Setings"},
        {Source("text\n@ Settings"), "XYZ.txt:3: Settings stands twice"},
        {Source(""), "XYZ.txt:1: a topic without text"},
        {Source(std::string(2541, 'x')), "XYZ.txt:1: Settings is longer than its 2540 bytes"},
        {"@ Settings\ntext\n", "lacks the topic Software"},
    };
    for (const Slip& slip : slips) {
        EXPECT_NE(Make(slip.source), 0) << slip.said;
        EXPECT_NE(folder_.Read("said").find(slip.said), std::string::npos) << folder_.Read("said");
    }
}

}  // namespace
}  // namespace zandrell
