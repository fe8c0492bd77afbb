#include "projects/project_file.h"

#include <gtest/gtest.h>

#include <random>

#include "base/data_files.h"
#include "base/text_encoding.h"
#include "support/test_folder.h"

namespace zandrell {
namespace {

TEST(ProjectNames, OfTheDialogAndOfASave) {
    const struct {
        const char *typed, *title, *completed, *saved;
    } cases[] = {
        {"", "A-B-C", "AB-C.prj", "AB-C.prj"},
        {" .PrJ ", "Halle", "Halle.prj", "Halle.prj"},
        {"Halle.prj", "x", "Halle.prj", "Halle.PRJ"},
        {" Halle.PRJ ", "x", "Halle.PRJ", "Halle.PRJ"},
        {"A.B.prj", "x", "A.B.prj", "A.B.PRJ"},
        // Without the extension a save costs four characters; the dialog completes the name before.
        {"Halle", "x", "Halle.prj", "H.PRJ"},
        {"Halle.v2", "x", "Halle.prj", "Hall.PRJ"},
        {"Küche", "x", "Küche.prj", "K.PRJ"},
        {"abc", "x", "abc.prj", ".PRJ"},
        {"", "", ".prj", ".prj"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(CompletedName(c.typed, c.title), c.completed) << c.typed;
        EXPECT_EQ(SavedName(c.typed, c.title), c.saved) << c.typed;
    }
}

TEST(ProjectNames, PathsAndForbiddenCharactersAreNoNames) {
    for (const char* name : {"a/b.prj", "a\\b.prj", "..", "", "a\nb.prj", "a?.prj", "a\"b.prj"}) {
        EXPECT_FALSE(IsPlainFileName(name)) << name;
    }
    EXPECT_FALSE(IsPlainFileName(std::string(256, 'a')));
    for (const char* name : {"a.prj", "Ä ö 中.prj", ".prj", "a'b & c.prj"}) {
        EXPECT_TRUE(IsPlainFileName(name)) << name;
    }
}

TEST(ProjectFile, HeaderAndEveryItemAreQuoted) {
    EXPECT_EQ(ProjectText({"A, \"B\"", "", "", "QV"}, "12,5\r\n\"x,y\"\r\n#TRUE#\r\n"),
              "\"A, ''B''\",\"\",\"\",\"QV\"\r\n\"12\"\r\n\"5\"\r\n\"x,y\"\r\n\"#TRUE#\"\r\n");
}

TEST(ProjectFile, FilesOfOtherHandsAreRead) {
    const struct {
        const char* name;
        const char* text;
    } cases[] = {
        {"CR LF", "\"T\",\"R\",\"\",\"QV\"\r\n\"1\"\r\n\"2\"\r\n"},
        {"LF", "\"T\",\"R\",\"\",\"QV\"\n\"1\"\n\"2\"\n"},
        {"CR", "\"T\",\"R\",\"\",\"QV\"\r\"1\"\r\"2\"\r"},
        {"one line", "\"T\",\"R\",\"\",\"QV\",\"1\",\"2\""},
        {"no quotes, no last line end", "T,R,third,QV\r\n1,2"},
        {"junk behind a quoted text",
         "\"T\"x,\"R\" y,\"\",\"QV\"zz\r\n\"1\"\r\n\"2\"\r\n  \r\n\r\n"},
    };
    for (const auto& c : cases) {
        const ProjectFile project = ReadProject(c.text);
        EXPECT_EQ(project.header.title, "T") << c.name;
        EXPECT_EQ(project.header.remark, "R") << c.name;
        EXPECT_EQ(project.header.tag, "QV") << c.name;
        EXPECT_EQ(project.items, (std::vector<std::string>{"1", "2"})) << c.name;
    }
    EXPECT_EQ(ReadProject("").header.tag, "");
}

TEST(ProjectFile, TheTagDecidesTheWorkingFile) {
    EXPECT_EQ(WorkingFileOf("qv"), "QV_ACT.dat");
    EXPECT_EQ(WorkingFileOf("Bv"), "BravL.dat");
    EXPECT_EQ(WorkingFileOf("TV"), "TorvL.dat");
    EXPECT_EQ(WorkingFileOf("XX"), "");
}

std::string AnyText(std::mt19937& random) {
    static const char* const pieces[] = {"a",  "Ü",  "ß",    ",", "\"",  "'", " ",  "\r\n",
                                         "\n", "中", "焓值", "#", ";",   "€", "\t", "12.5",
                                         "é",  "\r", "%1",   "&", "[*]", "0", "–"};
    std::string text;
    const std::size_t length = random() % 40 == 0 ? 10'000 : random() % 12;
    while (text.size() < length) text += pieces[random() % std::size(pieces)];
    return text;
}

// What the form of the files cannot hold: a double quote becomes two apostrophes.
std::string Stored(std::string text) {
    for (auto at = text.find('"'); at != std::string::npos; at = text.find('"')) {
        text.replace(at, 1, "''");
    }
    return text;
}

TEST(ProjectFile, AnyTitleAndAnyItemComeBack) {
    const TestFolder folder;
    const DataFiles files(folder.Path());
    std::mt19937 random(8);
    for (int round = 0; round < 3000; ++round) {
        const ProjectHeader header{AnyText(random), AnyText(random), "", "QV"};
        std::vector<std::string> items(1 + random() % 20);
        for (std::string& item : items) item = AnyText(random);
        const std::string text = ProjectText(header, ItemsText(items));
        // Most rounds pass the encoding alone; the disk itself is not what is on trial.
        std::string back = DecodeText(EncodeText(text));
        if (round % 100 == 0) {
            ASSERT_EQ(files.OpenForOutput("p.prj", text), FileStatus::Ok);
            back = files.OpenForInput("p.prj").text;
        }
        const ProjectFile project = ReadProject(back);
        ASSERT_EQ(project.header.title, Stored(header.title));
        ASSERT_EQ(project.header.remark, Stored(header.remark));
        ASSERT_EQ(project.header.tag, "QV");
        ASSERT_EQ(project.items.size(), items.size());
        for (std::size_t i = 0; i < items.size(); ++i)
            ASSERT_EQ(project.items[i], Stored(items[i]));
    }
}

}  // namespace
}  // namespace zandrell
