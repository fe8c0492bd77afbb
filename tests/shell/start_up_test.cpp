#include "shell/start_up.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include "script_session.h"

namespace zandrell {
namespace {

namespace fs = std::filesystem;

struct Started {
    SharedValues shared;
    fs::path folder;
};

Started StartWith(const TestFolder& folder, const std::string& parameters) {
    folder.Write("kparam.dat", parameters);
    DataFiles files(folder.Path());
    Started started;
    ReadSuiteParameters(NamedFolder(folder / "searched"), files, started.shared);
    started.folder = files.DataFolder();
    return started;
}

// Thirty fields, of which those that matter are given.
std::string Parameters(const std::map<int, std::string>& fields) {
    std::string text;
    for (int i = 1; i <= 30; ++i) {
        const auto found = fields.find(i);
        text += (found == fields.end() ? "\"\"" : found->second) + "\r\n";
    }
    return text;
}

TEST(SuiteParameters, FieldsReachTheirValues) {
    const TestFolder folder;
    const auto started = StartWith(folder, Parameters({{2, "\"" + folder.Path().string() + "\""},
                                                       {4, "DEU"},
                                                       {5, "CHF"},
                                                       {6, "\"Sans\""},
                                                       {7, "\"M\xFCller, K\xE4lte\""},
                                                       {12, "1"},
                                                       {19, "\"/projects\""},
                                                       {22, "3"},
                                                       {23, "\"/logo.jpg\""},
                                                       {25, "\" 2 \""},
                                                       {26, "\" 11 \""},
                                                       {28, "A3"},
                                                       {29, "\"2\""},
                                                       {30, "\"9.0\""}}));
    const SharedValues& s = started.shared;
    EXPECT_EQ(started.folder, folder.Path());
    EXPECT_EQ(s.LanguageTag, "DEU");
    EXPECT_EQ(s.CurrencyTag, "CHF");
    EXPECT_EQ(s.PrintFontName, "Sans");
    EXPECT_EQ(s.UserCompany, "Müller, Kälte");
    EXPECT_EQ(s.HeaderStyle, 1);
    EXPECT_EQ(s.ProjectFolder, "/projects");
    EXPECT_EQ(s.SkinNumber, 3);
    EXPECT_EQ(s.LogoFile, "/logo.jpg");
    EXPECT_EQ(s.DateFormatCode, "2");
    EXPECT_EQ(s.LabelFontSize, "11");
    EXPECT_EQ(s.PaperSize, "A3");
    EXPECT_EQ(s.PaperOrientation, 2);
    EXPECT_EQ(s.VersionText, "10.11.2") << "a stored version is overruled";
}

TEST(SuiteParameters, DefaultsHoldWhereTheFileSaysNothing) {
    for (const std::string& parameters : {Parameters({{4, "DE"}, {6, "\"Ab\""}, {19, "\"C:\\\""}}),
                                          std::string(), std::string(900, '\0')}) {
        const TestFolder folder;
        const auto started = StartWith(folder, parameters);
        const SharedValues& s = started.shared;
        EXPECT_EQ(s.LanguageTag, "ENG");
        EXPECT_EQ(s.CurrencyTag, "EUR");
        EXPECT_EQ(s.PrintFontName, "Arial");
        EXPECT_EQ(s.ProjectFolder, fs::current_path().string());
        EXPECT_EQ(s.LabelFontSize, "12");
        EXPECT_EQ(s.PaperOrientation, 1);
        EXPECT_EQ(started.folder, folder / "searched")
            << "an empty folder field starts a new search";
        EXPECT_TRUE(fs::is_directory(folder / "searched"));
        EXPECT_EQ(s.LogoFile, (folder / "zdsample.jpg").string());
    }
    const TestFolder empty;
    DataFiles files(empty.Path());
    SharedValues shared;
    ReadSuiteParameters({}, files, shared);
    EXPECT_EQ(files.DataFolder(), empty.Path()) << "without the file the folder survives";
}

TEST(Branding, TitleIsUnscrambledFromItsRecords) {
    const TestFolder folder;
    std::string file(std::size_t{153} * 3, ' ');
    const auto put = [&file](std::size_t record, const std::string& text) {
        file.resize(std::max(file.size(), record * 3), ' ');
        file.replace((record - 1) * 3, 3, (text + "   ").substr(0, 3));
    };
    put(153, "20");
    // "Kühl" with the DOS code 129 of the small u with diaeresis, each code plus 20
    const int codes[] = {'K', 129, 'h', 'l'};
    for (std::size_t i = 0; i < 4; ++i) put(201 + i, std::to_string(codes[i] + 20));
    folder.Write("rechOpt.dat", file);
    SharedValues shared;
    LoadBranding(DataFiles(folder.Path()), shared);
    EXPECT_EQ(shared.AppTitle, "Kühl");
    for (const std::string& broken :
         {std::string(), std::string("\0\1\2", 3), std::string(5000, 'x')}) {
        folder.Write("rechOpt.dat", broken);
        LoadBranding(DataFiles(folder.Path()), shared);
        EXPECT_EQ(shared.AppTitle, "Zandrell");
    }
}

TEST(DataFolder, AFirstStartFillsItAndNeverOverwrites) {
    const TestFolder place;
    const fs::path folder = place / "deep/Zandrell";
    EXPECT_TRUE(DeliverDataSet(ZANDRELL_STAGED_DATA, folder));
    EXPECT_TRUE(fs::exists(folder / "qvdata.dat"));
    std::ofstream(folder / "qv_par.dat") << "mine";
    EXPECT_FALSE(DeliverDataSet(ZANDRELL_STAGED_DATA, folder));
    EXPECT_EQ(place.Read("deep/Zandrell/qv_par.dat"), "mine");
    EXPECT_EQ(std::distance(fs::directory_iterator(place / "deep"), {}), 1);
    EXPECT_FALSE(DeliverDataSet(place / "none", place / "other"));
    EXPECT_FALSE(fs::exists(place / "other"));

    ::setenv("XDG_DATA_HOME", place.Path().c_str(), 1);
    EXPECT_EQ(FindDataFolder(0, {}), place / "Zandrell");
    EXPECT_FALSE(fs::exists(place / "Zandrell"));
    FindDataFolder(2, {});
    EXPECT_TRUE(fs::is_directory(place / "Zandrell"));
    ::setenv("XDG_DATA_HOME", "relative", 1);
    ::setenv("HOME", place.Path().c_str(), 1);
    EXPECT_EQ(FindDataFolder(0, {}), place / ".local/share/Zandrell");
    ::unsetenv("XDG_DATA_HOME");
}

}  // namespace
}  // namespace zandrell
