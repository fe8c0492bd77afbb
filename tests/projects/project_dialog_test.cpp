#include "projects/project_dialog.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "projects/desk_session.h"
#include "projects/folder_listing.h"

namespace zandrell {
namespace {

namespace fs = std::filesystem;

class DialogTest : public DeskTest {
  protected:
    DialogTest() {
        fs::create_directory(folder_ / "projects");
        shared_.ProjectFolder = Folder() + "/";
        folder_.Write("QV_ACT.dat", State("old"));
        desk_.Activate();
    }
    ~DialogTest() override { EXPECT_EQ(fs::current_path(), start_) << "the process came back"; }

    std::string Folder() const { return (folder_ / "projects").string(); }
    void Put(const std::string& name, const std::string& text) const {
        folder_.Write("projects/" + name, text);
    }
    std::string Get(const std::string& name) const { return folder_.Read("projects/" + name); }
    void In(std::function<void(ProjectDialog&)> acts) {
        user_.in_window = [this, acts = std::move(acts)](ModalForm&) { acts(desk_.dialog); };
    }
    // What the mode shows when it opens, in one line.
    std::string Opened(int mode) {
        std::string shown;
        In([&](ProjectDialog& d) {
            shown = d.Label1.text + "|" + d.title + "|" + d.ProNam.text + "|";
            for (const auto& item : d.List1.items) shown += item + " ";
            if (d.List1.foreground) shown += "red";
        });
        desk_.OpenDialog(mode);
        return shown;
    }
};

TEST_F(DialogTest, EachModeShowsItsPromptItsNameAndItsFiles) {
    Put("b.prj", Project("B", "1"));
    Put("A.PRJ", Project("A", "1"));
    Put("other.prj", Project("O", "1", "BV"));
    Put("lower.prj", Project("L", "1", "qv"));
    Put("s.vlt", "");
    Put("z.zdd", "");
    Put("p.jpg", "");
    Put("x.xls", "");
    Put("d.adc", "");
    Put("c.txt", "");
    Captions& words = program_.captions;
    words[Caption::SetOfValues] = "set";
    words[Caption::SaveButton] = "keep";
    shared_.ProjectTitle = "A-B-C longer title";
    shared_.VltFileName = "Coils.vlt";
    const std::string program = "load Zandrell 10.11.2 ";
    const struct {
        int mode;
        std::string shown;
    } cases[] = {
        {1, "load project :|load project|.prj|A.PRJ b.prj "},
        {2, "save as :|save as|AB-Clonger title.prj|A.PRJ b.prj "},
        {3, "load set|load set||s.vlt "},
        {4, "set keep as :|set keep as|Coils.vlt|s.vlt "},
        {5, "project delete|project delete|.prj|A.PRJ b.prj lower.prj other.prj red"},
        {6, "load set|load set||s.vlt red"},
        {21, "Graphic load :|Graphic load|.jpg|p.jpg "},
        {121, "Graphic load :|Graphic load|.jpg|p.jpg "},
        {141, "load project :|load project|.zdd|z.zdd "},
        {142, "save as :|save as|AB-Clong*.zdd|z.zdd "},
        {151, "load ClimaCheck Excel Worksheet :|load ClimaCheck Excel Worksheet|.xls|x.xls "},
        {161, "load Testo 735 Excel Worksheet :|load Testo 735 Excel Worksheet|.xls|x.xls "},
        {171, program + "Diagnostics File:|" + program + "Diagnostics File|.adc|d.adc "},
        {178, program + "SPS - File:|" + program + "SPS - File|.txt|c.txt "},
    };
    for (const auto& c : cases) {
        shared_.ProjectFileName.clear();
        EXPECT_EQ(Opened(c.mode), c.shown) << c.mode;
        EXPECT_EQ(shared_.DialogMode, 0) << "the user cancelled";
    }
    shared_.ProjectFileName = "last.adc";
    EXPECT_EQ(Opened(177),
              program + "Diagnostics File:|" + program + "Diagnostics File|last.adc|d.adc ");
    In([](ProjectDialog& d) {
        d.UserSetText("ProNam", "a.prj");
        d.UserClick("Command3D1");
        EXPECT_FALSE(d.closed) << "an unknown request does nothing";
    });
    desk_.OpenDialog(99);
}

TEST_F(DialogTest, TheWordsFollowTheOrderOfTheLanguage) {
    const struct {
        const char *tag, *load, *remove;
    } cases[] = {{"ENG", "load project", "project delete"},
                 {"NDL", "load project", "delete project"},
                 {"FRA", "load un project", "delete un project"},
                 {"ITA", "load un project", "delete un project"},
                 {"POR", "load un project", "project delete"},
                 {"ESP", "load un project", "delete un project"},
                 {"DEU", "project load", "project delete"}};
    for (const auto& c : cases) {
        shared_.LanguageTag = c.tag;
        EXPECT_TRUE(Opened(1).starts_with(std::string(c.load) + " :|")) << c.tag;
        EXPECT_TRUE(Opened(5).starts_with(std::string(c.remove) + "|")) << c.tag;
    }
}

TEST_F(DialogTest, LoadingTakesTheProjectAndItsWorkingState) {
    Put("Halle.prj", Project("Title, \"1\"", "loaded"));
    fields_.FillWith("typed");
    In([&](ProjectDialog& d) {
        EXPECT_EQ(fs::current_path(), Folder());
        d.UserSelect("List1", 0);
        EXPECT_EQ(d.List1.tool_tip, "Halle.prj: project Title, ''1'', remark");
        EXPECT_NE(d.preview_figures.text.find("loaded °C, loaded %"), std::string::npos);
        d.UserDoubleClick("List1");
        EXPECT_TRUE(d.closed);
        EXPECT_EQ(shared_.DialogMode, 33);
    });
    desk_.LoadProject();
    EXPECT_EQ(shared_.DialogMode, 0);
    EXPECT_EQ(fields_[0], "loaded");
    EXPECT_EQ(shared_.ProjectTitle, "Title, ''1''");
    EXPECT_EQ(shared_.LastProjectFile, "Halle.prj");
    EXPECT_EQ(shared_.ProjectFolder, Folder() + "/");
    EXPECT_EQ(program_.closed_dialogs, 1);
    EXPECT_FALSE(desk_.store.IsModified());
    fields_[0] = "changed";
    EXPECT_TRUE(desk_.store.IsModified());
    EXPECT_NE(folder_.Read("QV_ACT.bak").find("typed"), std::string::npos);
    EXPECT_EQ(folder_.Read("QV_ACT.dat").substr(0, 10), "\"loaded\"\r\n");
    ASSERT_EQ(desk_.store.recent.Paths().size(), 1U);
    desk_.OpenRecent(0);
    EXPECT_EQ(fields_[0], "loaded");
}

TEST_F(DialogTest, AProjectThatCanNotBeLoadedChangesNothing) {
    Put("untagged.prj", "\"T\",\"R\",\"\",\"\"\r\n\"1\"\r\n");
    Put("huge.prj", std::string(5U << 20U, 'x'));
    fs::create_directory(folder_ / "projects/folder.prj");
    for (const char* name : {"gone.prj", "untagged.prj", "huge.prj", "folder.prj", "a/b.prj"}) {
        fields_.FillWith("typed");
        shared_.ProjectTitle = "Mine";
        user_.messages.clear();
        In([&](ProjectDialog& d) {
            d.UserSetText("ProNam", name);
            d.UserReturn("ProNam");
        });
        desk_.LoadProject();
        EXPECT_EQ(user_.messages.size(), 1U) << name;
        EXPECT_EQ(fields_[0], "typed") << name;
        EXPECT_EQ(shared_.ProjectTitle, "Mine") << name;
        EXPECT_EQ(shared_.LastProjectFile, "") << name;
        EXPECT_EQ(folder_.Read("QV_ACT.dat"), State("old")) << name;
        EXPECT_EQ(program_.loads, 0) << name;
    }
}

TEST_F(DialogTest, AnotherModulesProjectGoesToItsOwnFile) {
    Put("b.prj", Project("B", "1", "bv"));
    Put("x.prj", Project("X", "2", "XX"));
    desk_.OpenProject(Folder() + "/b.prj");
    EXPECT_EQ(folder_.Read("BravL.dat").substr(0, 5), "\"1\"\r\n");
    EXPECT_EQ(folder_.Read("QV_ACT.dat"), State("old"));
    desk_.OpenProject(Folder() + "/x.prj");
    EXPECT_EQ(shared_.ProjectTitle, "X") << "only the header is taken";
    EXPECT_EQ(fields_[0], "old");
    EXPECT_EQ(folder_.Read("QV_ACT.dat"), State("old"));
}

TEST_F(DialogTest, SavingAsksForANameOnceAndThenKeepsIt) {
    fields_.FillWith("one");
    shared_.ProjectTitle = "Halle";
    In([&](ProjectDialog& d) {
        EXPECT_EQ(d.ProNam.text, "Halle.prj");
        d.UserSetText("ProNam", "Neubau");
        d.UserClick("Command3D1_l");
        EXPECT_TRUE(d.closed);
    });
    desk_.SaveProject();
    EXPECT_EQ(Get("Neubau.PRJ").substr(0, 31), "\"Halle\",\"\",\"\",\"QV\"\r\n\"one\"\r\n\"one");
    EXPECT_EQ(shared_.LastProjectFile, "Neubau.PRJ");
    EXPECT_EQ(shared_.DialogMode, 0);
    In([](ProjectDialog&) { ADD_FAILURE() << "no dialog for a project in hand"; });
    shared_.ProjectFolder = "/elsewhere/";
    fields_.FillWith("two");
    desk_.SaveProject();
    EXPECT_NE(Get("Neubau.PRJ").find("two"), std::string::npos) << "where the project came from";
    EXPECT_TRUE(user_.questions.empty() && user_.messages.empty());
}

TEST_F(DialogTest, OneProjectIsOneFileInAnySpelling) {
    Put("Halle.prj", Project("H", "1"));
    desk_.OpenProject(Folder() + "/Halle.prj");
    fields_[0] = "changed";
    desk_.SaveProject();
    EXPECT_FALSE(fs::exists(folder_ / "projects/Halle.PRJ"));
    EXPECT_NE(Get("Halle.prj").find("changed"), std::string::npos);
    EXPECT_TRUE(user_.questions.empty());
    // With both spellings there it is the one that was loaded.
    Put("Halle.PRJ", Project("other", "2"));
    desk_.OpenProject(Folder() + "/Halle.prj");
    fields_[0] = "again";
    desk_.SaveProject();
    EXPECT_NE(Get("Halle.prj").find("again"), std::string::npos);
    EXPECT_NE(Get("Halle.PRJ").find("other"), std::string::npos);
}

TEST_F(DialogTest, AnotherProjectIsReplacedOnlyByAYes) {
    Put("Mine.PRJ", Project("M", "1"));
    Put("theirs.prj", Project("T", "2"));
    desk_.OpenProject(Folder() + "/Mine.PRJ");
    fields_[0] = "changed";
    bool closed_on_no = true;
    In([&](ProjectDialog& d) {
        d.UserSetText("ProNam", "Theirs");
        d.UserClick("Command3D1");
        closed_on_no = d.closed;
        user_.answers = {true};
        d.UserClick("Command3D1");
    });
    desk_.SaveProjectUnder();
    EXPECT_FALSE(closed_on_no) << "another name can be tried";
    EXPECT_EQ(user_.questions.size(), 2U);
    EXPECT_NE(Get("theirs.prj").find("changed"), std::string::npos);
    // Another program has saved the project in hand meanwhile.
    Put("theirs.prj", Project("T", "elsewhere"));
    fields_[0] = "mine";
    desk_.SaveProject();
    EXPECT_EQ(user_.questions.size(), 3U);
    EXPECT_NE(Get("theirs.prj").find("elsewhere"), std::string::npos);
}

TEST_F(DialogTest, ANameThatIsNoneIsRefusedAndTheDialogStays) {
    for (const char* name : {"a/b", "..\\c.prj", "a*b.prj", "", ".prj"}) {
        user_.messages.clear();
        In([&](ProjectDialog& d) {
            d.UserSetText("ProNam", name);
            d.UserClick("Command3D1");
            EXPECT_FALSE(d.closed) << name;
        });
        desk_.SaveProjectUnder();
        EXPECT_EQ(user_.messages.size(), 1U) << name;
        EXPECT_TRUE(FilesIn(Folder(), ".prj", ListingOrder::Name).empty()) << name;
    }
}

TEST_F(DialogTest, DeletingAsksFirst) {
    Put("Halle.prj", Project("H", "1"));
    for (const bool answer : {false, true}) {
        user_.answers = {answer};
        In([&](ProjectDialog& d) {
            d.UserPick("List1", "Halle.prj");
            d.UserClick("Command3D1");
            EXPECT_TRUE(d.closed);
        });
        desk_.OpenDialog(5);
        EXPECT_EQ(user_.questions.back(), "     project ''Halle.prj'' delete ?!");
        EXPECT_EQ(fs::exists(folder_ / "projects/Halle.prj"), !answer);
    }
    // A set stands in the data folder, whatever folder is shown.
    folder_.Write("s.vlt", "x");
    Put("s.vlt", "x");
    user_.answers = {true};
    In([](ProjectDialog& d) {
        d.UserPick("List1", "s.vlt");
        EXPECT_EQ(d.List1.tool_tip, "");
        d.UserClick("Command3D1");
    });
    desk_.OpenDialog(6);
    EXPECT_FALSE(fs::exists(folder_ / "s.vlt"));
    EXPECT_TRUE(fs::exists(folder_ / "projects/s.vlt"));
}

TEST_F(DialogTest, OtherRequestsGiveANameOrAPath) {
    Put("p.jpg", "x");
    const auto choose = [this](int mode, const char* name) {
        In([name](ProjectDialog& d) {
            d.UserSetText("ProNam", name);
            d.UserReturn("ProNam");
            EXPECT_TRUE(d.closed);
        });
        desk_.OpenDialog(mode);
    };
    shared_.ProjectFileName = "Halle.PRJ";
    choose(21, "p.jpg");
    EXPECT_EQ(shared_.LogoFile, Folder() + "/p.jpg");
    EXPECT_EQ(shared_.ProjectFileName, "Halle.PRJ");
    choose(121, "p.jpg");
    EXPECT_EQ(shared_.ResultText, Folder() + "/p.jpg");
    choose(3, " a.vlt ");
    EXPECT_EQ(shared_.VltFileName, "a.vlt");
    choose(151, "t.xls");
    EXPECT_EQ(shared_.ProjectFileName, "t.xls");
}

TEST_F(DialogTest, FoldersAreEnteredAndMade) {
    In([&](ProjectDialog& d) {
        EXPECT_EQ(d.Text1.text, Folder());
        d.UserClick("Command1");
        EXPECT_TRUE(d.Picture2.visible);
        d.UserSetText("Text1", "Neu");
        d.UserClick("Ok_butt");
        EXPECT_FALSE(d.Picture2.visible);
        EXPECT_TRUE(fs::is_directory(folder_ / "projects/Neu"));
        EXPECT_TRUE(d.UserPick("Dir1", Folder() + "/Neu"));
        EXPECT_EQ(fs::current_path(), folder_ / "projects/Neu");
        EXPECT_EQ(d.Text1.text, Folder() + "/Neu");
        d.UserPick("Dir1", "/no such folder");
        EXPECT_EQ(d.Dir1.text, Folder() + "/Neu") << "a folder that is not there is not entered";
        d.UserSetText("Text1", Folder());
        d.UserReturn("Text1");
        EXPECT_EQ(fs::current_path(), Folder());
        d.UserPick("Drive1", "/");
        EXPECT_EQ(d.Dir1.text, "/");
        d.UserSetText("ProNam", " kept.prj ");
    });
    desk_.LoadProject();
    EXPECT_EQ(shared_.ProjectFileName, "kept.prj") << "the name survives a cancel";
    EXPECT_EQ(shared_.ProjectFolder, Folder() + "/") << "the folder does not";
}

TEST_F(DialogTest, TheListIsFilteredAndSorted) {
    for (const char* name : {"Halle.prj", "halle 2.prj", "Büro.prj"}) Put(name, Project("x", "1"));
    fs::last_write_time(folder_ / "projects/Halle.prj",
                        fs::file_time_type::clock::now() + std::chrono::hours(1));
    In([](ProjectDialog& d) {
        EXPECT_EQ(d.List1.items,
                  (std::vector<std::string>{"Büro.prj", "halle 2.prj", "Halle.prj"}));
        d.UserSetText("Filter", "hall");
        EXPECT_EQ(d.List1.items, (std::vector<std::string>{"halle 2.prj", "Halle.prj"}));
        d.UserSelect("Order", 1);
        EXPECT_EQ(d.List1.items.front(), "Halle.prj");
        d.UserPick("List1", "halle 2.prj");
        d.UserSetText("Filter", "halle");
        EXPECT_EQ(d.List1.text, "halle 2.prj") << "what is chosen stays chosen while it is shown";
        d.UserSetText("Filter", "x");
        EXPECT_EQ(d.preview_words.text, "");
    });
    desk_.LoadProject();
}

}  // namespace
}  // namespace zandrell
