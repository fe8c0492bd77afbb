#include "projects/working_state_keeper.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "base/delimited_text.h"
#include "projects/desk_session.h"

namespace zandrell {
namespace {

using KeeperTest = DeskTest;

std::string Items(const std::vector<std::pair<int, std::string>>& given) {
    std::vector<std::string> items(20, "\"\"");
    for (const auto& [number, text] : given) items[static_cast<std::size_t>(number - 1)] = text;
    std::string text;
    for (const std::string& item : items) text += item + "\r\n";
    return text;
}

TEST(HandOver, EachItemReachesItsValue) {
    const HandOver taken = ReadHandOver(Items({{1, "1"},
                                               {2, "111"},
                                               {5, "Coil.DAT"},
                                               {6, "\" 12,5\""},
                                               {7, "\"7\""},
                                               {10, "\"Title, 1\""},
                                               {11, "Remark"},
                                               {12, "text"},
                                               {13, "\"to\""},
                                               {14, "\"tc\""},
                                               {15, "\"Coil\""},
                                               {16, "\"behind\""},
                                               {20, ".9"}}));
    EXPECT_TRUE(taken.waiting);
    EXPECT_EQ(taken.kind, 111);
    EXPECT_EQ(taken.file, "Coil.DAT");
    EXPECT_EQ(taken.lines[0].temperature, 12.5);
    EXPECT_EQ(taken.lines[1].temperature, 7);
    EXPECT_EQ(taken.lines[0].text + taken.lines[1].text, "totc");
    EXPECT_EQ(taken.title + taken.remark + taken.project_text, "Title, 1Remarktext");
    EXPECT_EQ(taken.cooler_word + taken.window_title, "Coilbehind");
    EXPECT_EQ(taken.pressure_bar, 0.9);
    EXPECT_EQ(ReadHandOver(Items({{1, "1"}, {2, "3"}, {20, ".9"}})).pressure_bar, 0)
        << "the pressure belongs to one kind";
    EXPECT_FALSE(ReadHandOver("").waiting);
    EXPECT_FALSE(ReadHandOver("\"x\",3,4").waiting) << "a flag that is no number is 0";
}

TEST(HandOver, OnlyAWorkingStateMayBeNamed) {
    for (const char* name : {"", "x", ".dat", "../a.dat", "a\\b.dat", "kparam.dat", "KPARAM.DAT",
                             "qv_par.dat", "ZANDData.dat", "torvl.dat", "a.dat.exe", "C:x.dat"}) {
        EXPECT_FALSE(IsWorkingStateName(name)) << name;
        EXPECT_EQ(
            ReadHandOver(Items({{1, "1"}, {2, "1"}, {5, std::string("\"") + name + "\""}})).file,
            "QV_ACT.dat");
    }
    EXPECT_TRUE(IsWorkingStateName("QV_ACT.dat"));
    EXPECT_TRUE(IsWorkingStateName("Übergabe 1.DAT"));
}

TEST_F(KeeperTest, EachKindLoadsAndSavesItsOwnFile) {
    const struct {
        const char* flag;
        int kind;
        const char *loaded, *saved;  // empty: none
    } cases[] = {{"0", 3, "QV_ACT.dat", "QV_ACT.dat"},
                 {"1", 0, "QV_ACT.dat", "QV_ACT.dat"},
                 {"1", 1, "Own.dat", "Own.dat"},
                 {"-1", 4, "Own.dat", "Own.dat"},
                 {"1", 5, "", ""},
                 {"1", 111, "Own.dat", "Own.dat"},
                 {"1", 77, "Own.dat", "QV_ACT.dat"}};
    for (const auto& c : cases) {
        folder_.Write("QV_ACT.dat", State("QV_ACT.dat"));
        folder_.Write("Own.dat", State("Own.dat"));
        folder_.Write(
            "ZANDData.dat",
            Items(
                {{1, c.flag}, {2, std::to_string(c.kind)}, {5, "\"Own.dat\""}, {10, "\"Title\""}}));
        RunningDesk program(folder_.Path());
        const std::string hint = "kind " + std::to_string(c.kind);
        EXPECT_EQ(program.desk.Activate(), c.loaded[0] != '\0') << hint;
        EXPECT_EQ(program.fields[0], c.loaded) << hint;
        EXPECT_EQ(program.shared.ProjectTitle, c.flag[0] == '0' || c.kind == 5 ? "" : "Title");
        EXPECT_EQ(folder_.Read("ZANDData.dat"), "0,0\r\n") << "a hand-over is used once";
        program.fields[0] = "typed";
        EXPECT_FALSE(program.desk.Activate()) << hint;
        EXPECT_EQ(program.fields[0], "typed") << "a later activation reloads nothing";
        ASSERT_TRUE(program.desk.SaveAtEnd());
        for (const char* name : {"QV_ACT.dat", "Own.dat"}) {
            const bool saved = folder_.Read(name).find("typed") != std::string::npos;
            EXPECT_EQ(saved, name == std::string(c.saved)) << hint << " " << name;
        }
        EXPECT_EQ(folder_.Read("ZANDData.dat") == "0,0\r\n", c.saved[0] == '\0')
            << "the duty is reported, except where nothing is saved";
        EXPECT_TRUE(program.user.messages.empty());
    }
}

TEST_F(KeeperTest, AHandOverDuringTheRunKeepsWhatWasTyped) {
    folder_.Write("QV_ACT.dat", State("old"));
    desk_.Activate();
    fields_[0] = "typed";
    shared_.LastProjectFile = "Halle.PRJ";
    folder_.Write("Own.dat", State("handed"));
    folder_.Write("ZANDData.dat", Items({{1, "1"}, {2, "1"}, {5, "Own.dat"}, {15, "\"Coil\""}}));
    EXPECT_TRUE(desk_.Activate());
    EXPECT_EQ(fields_[0], "handed");
    EXPECT_NE(folder_.Read("QV_ACT.bak").find("typed"), std::string::npos);
    EXPECT_EQ(shared_.LastProjectFile, "") << "a save must not write it over the project";
    EXPECT_EQ(program_.captions[Caption::Cooler], "Coil");
}

TEST_F(KeeperTest, TheReportHasTwentyEightItems) {
    desk_.Activate();
    shared_.ProjectFileName = "Halle.PRJ";
    shared_.ProjectTitle = "Title";
    shared_.LanguageTag = "DEU";
    desk_.QuickSave();
    const std::string report = folder_.Read("ZANDData.dat");
    DelimitedReader reader(report);
    std::vector<std::string> items(1);
    for (std::string item; reader.ReadText(item);) items.push_back(item);
    ASSERT_EQ(items.size(), 29U);
    const std::map<std::size_t, std::string> expected = {
        {3, "Halle.PRJ"},  {4, folder_.Path().string()},
        {5, "QV_ACT.dat"}, {6, " 0"},
        {7, " 0"},         {8, " 12"},
        {10, "Title"},     {17, "QV"},
        {19, " 0"},        {20, "0"},
        {21, "DEU"}};
    for (std::size_t i = 1; i <= 28; ++i) {
        const auto found = expected.find(i);
        EXPECT_EQ(items[i], found == expected.end() ? "" : found->second) << i;
    }
}

TEST_F(KeeperTest, ALoadKeepsThePresentInputsAndTheyComeBack) {
    desk_.Activate();
    fields_.FillWith("typed");
    folder_.Write("QV_ACT.dat", State("file"));
    desk_.QuickLoad();
    EXPECT_EQ(fields_[3], "file");
    EXPECT_EQ(program_.loads, 1);
    desk_.QuickLoad();
    EXPECT_NE(folder_.Read("QV_ACT.bak").find("typed"), std::string::npos)
        << "a load that changes nothing does not push it out";
    desk_.RestorePrevious();
    EXPECT_EQ(fields_[3], "typed");
    desk_.RestorePrevious();
    EXPECT_EQ(fields_[3], "file") << "the two take each other's place";
}

TEST_F(KeeperTest, ALoadThatCanNotKeepThePresentInputsIsRefused) {
    desk_.Activate();
    fields_.FillWith("typed");
    folder_.Write("QV_ACT.dat", State("file"));
    std::filesystem::create_directory(folder_ / "QV_ACT.bak");
    desk_.QuickLoad();
    EXPECT_EQ(fields_[3], "typed");
    ASSERT_EQ(user_.messages.size(), 1U);
    EXPECT_NE(user_.messages[0].find("QV_ACT.bak"), std::string::npos);
    EXPECT_NE(user_.messages[0].find("Is a directory"), std::string::npos);
}

TEST_F(KeeperTest, ALaterSaveDoesNotThrowAwayAnEarlierOneOfAnotherProgram) {
    folder_.Write("QV_ACT.dat", State("old"));
    RunningDesk other(folder_.Path());
    desk_.Activate();
    other.desk.Activate();
    other.fields.FillWith("theirs");
    other.desk.QuickSave();
    fields_.FillWith("mine");
    desk_.QuickSave();
    ASSERT_EQ(user_.questions.size(), 1U);
    EXPECT_NE(folder_.Read("QV_ACT.dat").find("theirs"), std::string::npos);
    EXPECT_NE(folder_.Read("QV_ACT.bak").find("mine"), std::string::npos)
        << "what was not saved is kept";
    EXPECT_TRUE(desk_.SaveAtEnd()) << "and the program can end";
    user_.answers = {true};
    desk_.QuickSave();
    EXPECT_NE(folder_.Read("QV_ACT.dat").find("mine"), std::string::npos);
    const std::size_t asked = user_.questions.size();
    fields_.FillWith("mine too");
    desk_.QuickSave();
    EXPECT_EQ(user_.questions.size(), asked) << "the own save is nobody else's";
    folder_.Write("QV_ACT.dat", State("theirs again"));
    desk_.NewProject();
    EXPECT_EQ(user_.questions.size(), asked + 1);
    EXPECT_EQ(fields_[0], "mine too");
    EXPECT_NE(folder_.Read("QV_ACT.dat").find("theirs again"), std::string::npos);
}

TEST_F(KeeperTest, AFileThatCouldNotBeReadAtTheStartIsNotReplacedUnasked) {
    const std::string huge(5U << 20U, 'x');
    folder_.Write("QV_ACT.dat", huge);
    desk_.Activate();
    fields_.FillWith("typed");
    EXPECT_FALSE(desk_.SaveAtEnd());
    EXPECT_EQ(user_.messages.size(), 2U) << "at the start and at the end";
    EXPECT_EQ(folder_.Read("QV_ACT.dat").size(), huge.size());
    EXPECT_TRUE(desk_.SaveAtEnd()) << "a second try lets the program end";
    desk_.QuickSave();
    EXPECT_NE(folder_.Read("QV_ACT.dat").find("typed"), std::string::npos) << "on request it is";

    folder_.Write("QV_ACT.dat", huge);
    RunningDesk later(folder_.Path());
    later.desk.Activate();
    later.fields.FillWith("later");
    folder_.Write("QV_ACT.dat", State("readable again"));
    EXPECT_TRUE(later.desk.SaveAtEnd());
    EXPECT_EQ(later.user.questions.size(), 1U) << "nobody knows what it holds";
    EXPECT_NE(folder_.Read("QV_ACT.dat").find("readable again"), std::string::npos);
}

TEST_F(KeeperTest, ANewProjectIsEmptyAndForgetsTheOldName) {
    folder_.Write("QV_ACT.dat", State("old"));
    desk_.Activate();
    shared_.ProjectTitle = "Title";
    shared_.ProjectRemark = "Remark";
    shared_.LastProjectFile = shared_.ProjectFileName = "Halle.PRJ";
    fields_.steam.on = false;
    fields_.FillWith("typed");
    desk_.NewProject();
    EXPECT_FALSE(std::filesystem::exists(folder_ / "QV_ACT.dat"));
    EXPECT_EQ(fields_[0] + fields_[16], "");
    EXPECT_EQ(fields_.coil.text, "95");
    EXPECT_FALSE(fields_.steam.on) << "the humidifier stays";
    EXPECT_EQ(shared_.ProjectTitle + shared_.ProjectRemark + shared_.LastProjectFile, "");
    EXPECT_NE(folder_.Read("QV_ACT.bak").find("typed"), std::string::npos);
    EXPECT_TRUE(user_.messages.empty());
}

}  // namespace
}  // namespace zandrell
