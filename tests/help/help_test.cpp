#include <gtest/gtest.h>

#include <functional>

#include "base/delimited_text.h"
#include "help/help_form.h"
#include "help/help_records.h"
#include "support/test_folder.h"

namespace zandrell {
namespace {

std::string Record(const std::string& start) {
    std::string record = start;
    record.resize(128, ' ');
    return record;
}

TEST(HelpRecords, ReadsWhatIsMarked) {
    const std::string long_text(127, 'x');
    struct Case {
        const char* what;
        std::string bytes;
        int first, count;
        std::string text;
    };
    const Case cases[] = {
        {"one record", Record("#Hello"), 1, 20, "Hello"},
        {"free records leave no gap", Record("#" + long_text) + Record("free") + Record("#end"), 1,
         3, long_text + "end"},
        {"a run in the middle", Record("#a") + Record("#b") + Record("#c"), 2, 1, "b"},
        {"no marks", Record("text") + Record(" #x"), 1, 2, ""},
        {"short last record", Record("#" + long_text) + "#tail", 1, 2, long_text + "tail"},
        {"short record in a run is padded", "#ab", 1, 2, "ab"},
        {"nothing there", "", 1, 20, ""},
        {"behind the end", Record("#a"), 41, 20, ""},
        {"no records", Record("#a"), 1, 0, ""},
        {"code page", Record("#K\xE4lte"), 1, 1, "Kälte"},
        {"UTF-8 across two records", Record("#" + std::string(126, 'x') + "\xC3") + Record("#\xA4"),
         1, 2, std::string(126, 'x') + "ä"},
    };
    for (const Case& c : cases) EXPECT_EQ(HelpText(c.bytes, c.first, c.count), c.text) << c.what;
}

TEST(HelpRecords, WritesTheRunAndNothingElse) {
    const std::string before = Record("#one") + Record("#two") + Record("#three") + "odd tail";
    struct Case {
        const char* what;
        std::string text;
        std::string records;  // of the run, records 2 and 3
    };
    const Case cases[] = {
        {"short", "new", Record("#new") + Record("")},
        {"empty", "", Record("#") + Record("")},
        {"exactly one record", std::string(127, 'y'),
         Record("#" + std::string(127, 'y')) + Record("#")},
        {"two records", std::string(128, 'y'), Record("#" + std::string(127, 'y')) + Record("#y")},
        {"too long is cut", std::string(400, 'z'),
         Record("#" + std::string(127, 'z')) + Record("#" + std::string(127, 'z'))},
        {"line ends and code page", "Kälte\nein", Record("#K\xE4lte\r\nein") + Record("")},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(WithHelpText(before, 2, 2, c.text), Record("#one") + c.records + "odd tail")
            << c.what;
    }
    // A file that does not reach so far is filled up with free records.
    EXPECT_EQ(WithHelpText("#ab", 2, 1, "x"), Record("#ab") + Record("#x"));
}

struct HelpUser : UserInterface {
    std::function<void(ModalForm&)> in_window;
    std::vector<Message> messages;
    void ShowModal(ModalForm& window) override {
        if (in_window) in_window(window);
        if (!window.closed) window.UserClick(window.cancel_control);
        EXPECT_TRUE(window.closed);
    }
    void ShowMessage(const Message& message) override { messages.push_back(message); }
    bool Confirm(const Message&) override { return false; }
    void WaitMilliseconds(int) override {}
    void CopyChart() override {}
    bool ChoosePrinter(const std::string&) override { return false; }
};

struct HelpSession {
    TestFolder folder;
    DataFiles files{folder.Path()};
    SharedValues shared;
    Captions captions;
    HelpUser user;
    HelpForm form{files, shared, captions, user};

    explicit HelpSession(const std::string& tag = "ENG") {
        folder.CopyWholeSet();
        shared.LanguageTag = tag;
        LoadCaptions(files, tag, captions);
    }

    // Opens a topic, lets a test act and closes. The answer is the text that was shown.
    std::string Show(
        const std::string& topic, const std::function<void()>& acts = [] {}) {
        std::string shown;
        user.in_window = [&](ModalForm&) {
            shown = form.InfoText.text;
            acts();
        };
        shared.DateText = topic;
        form.ShowHelp();
        return shown;
    }
};

TEST(HelpBox, EveryTopicHasItsTextInBothLanguages) {
    struct Case {
        const char* tag;
        const char* topic;
        const char* start;
    };
    const Case cases[] = {
        {"ENG", "Zandrell-Software", "Zandrell: humid air"},
        {"ENG", "Settings", "Settings of the chart"},
        {"ENG", "Chart and Read-out", "Reading the chart"},
        {"ENG", "Project Data", "Projects"},
        {"ENG", "Component", "Component"},
        {"ENG", "Select Series", "Selecting a series"},
        {"ENG", "Set of Values", "Set of values"},
        {"ENG", "Air Treatment", "All capacities"},
        {"DEU", "Zandrell-Software", "Zandrell: feuchte Luft"},
        {"DEU", "Einstellungen", "Einstellungen des Diagramms"},
        {"DEU", "Diagramm und Ablesung", "Das Diagramm lesen"},
        {"DEU", "Projektdaten", "Projekte"},
        {"DEU", "Komponente", "Komponenten"},
        {"DEU", "Auswahl Baureihe", "Auswahl einer Baureihe"},
        {"DEU", "Wertesatz", "Wertesatz"},
        {"DEU", "Luftbehandlung", "Alle Leistungen"},
    };
    for (const Case& c : cases) {
        HelpSession session(c.tag);
        const std::string text = session.Show(c.topic);
        EXPECT_TRUE(text.starts_with(c.start)) << c.topic << ": " << text.substr(0, 60);
        EXPECT_GT(text.size(), 400U) << c.topic;
        EXPECT_EQ(text.find('{'), std::string::npos) << c.topic;
        EXPECT_EQ(text.find('\n') == 0 || text.find("\r\n") != std::string::npos, true);
    }
}

TEST(HelpBox, UnknownTopicsAndMissingFilesShowNothing) {
    HelpSession session;
    for (const char* topic : {"", "settings", "Settings ", "Zandrell"}) {
        EXPECT_EQ(session.Show(topic), "") << topic;
    }
    HelpSession french("FRA");
    EXPECT_EQ(french.Show("Zandrell-Software"), "");
}

TEST(HelpBox, WordsOfTheWindow) {
    HelpSession session;
    session.Show("Settings", [&] {
        EXPECT_EQ(session.form.title, "Zandrell Help Settings");
        EXPECT_TRUE(session.form.Label1.text.starts_with("Online tutorial download under:\r\n"));
        EXPECT_TRUE(session.form.Label2.text.starts_with("Zandrell tutorial channel:\r\n"));
        EXPECT_EQ(session.form.Command3D2_l.text, "      Save");
        EXPECT_EQ(session.form.Command3D2.tool_tip, "Save Zandrell Help");
        EXPECT_EQ(session.shared.HelpClosed, 0);
    });
    EXPECT_EQ(session.shared.HelpClosed, 1);
}

TEST(HelpBox, ARewrittenTopicIsSavedAndTheOthersStay) {
    HelpSession session;
    const std::string other = session.Show("Air Treatment");
    session.Show("Settings", [&] {
        session.form.UserSetText("InfoText", "Our own rules:\nφ up to 60 %");
        session.form.UserClick("Command3D2_l");
        EXPECT_FALSE(session.form.closed) << "saving does not close the box";
        EXPECT_EQ(session.shared.HelpClosed, 1);
    });
    EXPECT_EQ(session.Show("Settings"), "Our own rules:\r\nφ up to 60 %");
    EXPECT_EQ(session.Show("Air Treatment"), other);
    EXPECT_EQ(session.folder.Read("Zandhelp.ENG").size(), 210U * 128);
}

TEST(HelpBox, AFileThatCannotBeWrittenIsReportedAndTheTextStays) {
    HelpSession session;
    std::filesystem::remove(session.folder / "Zandhelp.ENG");
    std::filesystem::create_directory(session.folder / "Zandhelp.ENG");
    session.Show("Settings", [&] {
        session.form.UserSetText("InfoText", "typed");
        session.form.UserClick("Command3D2");
        EXPECT_EQ(session.form.InfoText.text, "typed");
        EXPECT_FALSE(session.form.closed);
        EXPECT_EQ(session.shared.HelpClosed, 0);
    });
    ASSERT_EQ(session.user.messages.size(), 1U);
    EXPECT_NE(session.user.messages[0].text.find("Zandhelp.ENG"), std::string::npos);
}

TEST(HelpBox, AReadOnlyFileIsWrittenAllTheSame) {
    HelpSession session;
    std::filesystem::permissions(session.folder / "Zandhelp.ENG", std::filesystem::perms(0444));
    session.Show("Settings", [&] {
        session.form.UserSetText("InfoText", "typed");
        session.form.UserClick("Command3D2");
    });
    EXPECT_EQ(session.Show("Settings"), "typed");
    EXPECT_TRUE(session.user.messages.empty());
}

struct NotedViewer : ViewerHost {
    bool installed = false;
    int started = 0;
    std::vector<std::string> opened;
    bool StartProgram() override {
        if (installed) ++started;
        return installed;
    }
    void OpenDocument(const std::string& path) override { opened.push_back(path); }
};

TEST(Viewer, HandsOverAndStartsTheProgramOrTheDocument) {
    for (const bool installed : {true, false}) {
        TestFolder folder;
        const DataFiles files(folder.Path());
        NotedViewer viewer;
        viewer.installed = installed;
        EXPECT_EQ(StartViewer(files, &viewer, "unit.jpg", "a \"topic\"", "text\r\nof two lines"),
                  FileStatus::Ok);
        EXPECT_EQ(folder.Read("zdview.dat"),
                  "\"unit.jpg\"\r\n\"\"\r\n\"a ''topic''\"\r\n\"text\r\nof two lines\"\r\n");
        EXPECT_EQ(viewer.started, installed ? 1 : 0);
        EXPECT_EQ(viewer.opened, installed
                                     ? std::vector<std::string>{}
                                     : std::vector<std::string>{(folder / "unit.jpg").string()});
    }
    // Without the hand-over there is nothing to show.
    NotedViewer viewer;
    EXPECT_NE(StartViewer(DataFiles("/no/such/folder"), &viewer, "unit.jpg", "", ""),
              FileStatus::Ok);
    EXPECT_TRUE(viewer.opened.empty());
}

}  // namespace
}  // namespace zandrell
