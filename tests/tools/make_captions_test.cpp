// The keeper of the caption tables: what a slip in a table is answered with, so that whoever adds a
// word learns from the build where the fault stands.

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "support/test_folder.h"

namespace zandrell {
namespace {

struct Outcome {
    int status;
    std::string said;
};

const std::string kSlots =
    "list\tnumber\tname\trole\twhere\n"
    "Caption\t13\tCooler\tcooler\tmenu\n"
    "AirCoCap\t6\tOfTheRoom\tof the room\tsheet\n"
    "QVCapt\t2\tRaised\traised to %1 %\tfoot of the chart\n";
const std::string kTexts =
    "name\ttext\n"
    "Cooler\tKühler\n"
    "OfTheRoom\tRaum\n"
    "Raised\tauf %1 % angehoben\n";

const std::string kEnglish =
    "name\ttext\nCooler\tCooler\nOfTheRoom\tof the Room\nRaised\traised to %1 %\n";

class MakeCaptions : public ::testing::Test {
  protected:
    Outcome Make(const std::string& slots, const std::string& texts) {
        std::filesystem::create_directories(folder_ / "in");
        folder_.Write("in/slots.tsv", slots);
        folder_.Write("in/DEU.tsv", texts);
        folder_.Write("in/ENG.tsv", kEnglish);
        return Call("'" + (folder_ / "in").string() + "' '" + (folder_ / "out").string() + "'");
    }
    Outcome Call(const std::string& arguments) {
        const std::string command = std::string("'") + ZANDRELL_MAKE_CAPTIONS + "' " + arguments +
                                    " 2>'" + (folder_ / "said").string() + "'";
        const int status = std::system(command.c_str());
        return {status, folder_.Read("said")};
    }

    TestFolder folder_;
};

TEST_F(MakeCaptions, PutsEachWordInItsPlaceAndGivesItItsName) {
    const Outcome made = Make(kSlots, kTexts);
    EXPECT_EQ(made.status, 0) << made.said;
    const std::string head = "\"\"\r\n\"auf %1 % angehoben\"\r\n\"\"\r\n";
    EXPECT_EQ(folder_.Read("out/QVCapt.DEU").substr(0, head.size()), head);
    const std::string header = (folder_ / "names.h").string();
    const std::string arguments = "--names '" + (folder_ / "in").string() + "' '" + header + "'";
    EXPECT_EQ(Call(arguments).status, 0);
    const std::string names = folder_.Read("names.h");
    for (const char* line :
         {"Cooler = 13,", "OfTheRoom = 316 + 6,", "Raised = 434 + 2,", "Caption::OfTheRoom}"}) {
        EXPECT_NE(names.find(line), std::string::npos) << line << '\n' << names;
    }
    // An equal header keeps its time, or every build would compile the whole program.
    const std::filesystem::file_time_type before{};
    std::filesystem::last_write_time(header, before);
    EXPECT_EQ(Call(arguments).status, 0);
    EXPECT_EQ(std::filesystem::last_write_time(header), before);
}

TEST_F(MakeCaptions, AWordThatALanguageLacksStandsThereInEnglishAndIsTold) {
    const Outcome made = Make(kSlots, "name\ttext\nCooler\tKühler\nRaised\tauf %1 %\n");
    EXPECT_EQ(made.status, 0);
    EXPECT_EQ(made.said, "DEU.tsv: OfTheRoom is not translated yet\n");
    EXPECT_NE(folder_.Read("out/AirCoCap.DEU").find("\"of the Room\""), std::string::npos);
    const Outcome lacks = Make(kSlots + "QVCapt\t3\tMore\tmore\tmenu\n", kTexts);
    EXPECT_NE(lacks.status, 0);
    EXPECT_NE(lacks.said.find("ENG.tsv: no text for More"), std::string::npos) << lacks.said;
}

struct Slip {
    const char* table;  // where it is made
    std::string from, to;
    const char* answer;
};

const std::vector<Slip> kSlips = {
    {"slots", "name\trole", "names\trole", "slots.tsv:1: the head line is not"},
    {"slots", "cooler\tmenu", "cooler", "slots.tsv:2: not 5 columns"},
    {"slots", "Caption\t13", "Captions\t13", "slots.tsv:2: no list \"Captions\""},
    {"slots", "QVCapt\t2", "QVCapt\t21", "slots.tsv:4: QVCapt has no slot \"21\""},
    {"slots", "QVCapt\t2", "QVCapt\t2x", "slots.tsv:4: QVCapt has no slot \"2x\""},
    {"slots", "AirCoCap\t6", "Caption\t13", "slots.tsv:3: a second row for Caption 13"},
    {"slots", "\tOfTheRoom", "\tCooler", "slots.tsv:3: a second slot named Cooler"},
    {"slots", "\tOfTheRoom", "\tof the room", "slots.tsv:3: \"of the room\" is no name"},
    {"slots", "\tOfTheRoom", "\t", "slots.tsv:3: \"\" is no name"},
    {"slots", "\tmenu", "\t ", "slots.tsv:2: the text is empty"},
    {"texts", "Raised\tauf", "Cooler\tauf", "DEU.tsv:4: Cooler is not a slot"},
    {"texts", "angehoben\n", "angehoben\nMore\tmehr\n", "DEU.tsv:5: More is not a slot"},
    {"texts", "Raum", "", "DEU.tsv:3: the text is empty"},
    {"texts", "Raum", "\"Raum\"", "DEU.tsv:3: a double quote or control character"},
    {"texts", "auf %1 %", "auf %2 %", "DEU.tsv:4: Raised has not the places of"},
    {"texts", "Kühler", "Kühler %1", "DEU.tsv:2: Cooler has not the places of"},
    {"texts", "Kühler", "K\xFC\xE6hler \xE5\xA3\x93", "can not be stored; is it UTF-8?"},
};

TEST_F(MakeCaptions, SaysInWhichFileAndLineASlipStands) {
    for (const Slip& slip : kSlips) {
        const bool in_slots = std::string(slip.table) == "slots";
        std::string slots = kSlots, texts = kTexts;
        std::string& table = in_slots ? slots : texts;
        const auto at = table.find(slip.from);
        ASSERT_NE(at, std::string::npos) << slip.answer;
        table.replace(at, slip.from.size(), slip.to);
        const Outcome made = Make(slots, texts);
        EXPECT_NE(made.status, 0) << slip.answer;
        EXPECT_NE(made.said.find(slip.answer), std::string::npos)
            << slip.answer << "\nbut: " << made.said;
    }
    EXPECT_NE(Call("").status, 0);
    EXPECT_NE(Call("--names somewhere").status, 0);
}

}  // namespace
}  // namespace zandrell
