#include "base/data_files.h"

#include <dlfcn.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "base/captions.h"
#include "support/test_folder.h"

namespace zandrell {
namespace {

namespace fs = std::filesystem;

// What the program asked of the system, in order. The calls go on to the system, but for a rename
// that is to fail.
struct SystemCalls {
    std::vector<std::string> made;
    bool rename_fails = false;
};
SystemCalls system_calls;

template <class Call>
Call RealCall(const char* name) {
    return reinterpret_cast<Call>(::dlsym(RTLD_NEXT, name));
}

}  // namespace
}  // namespace zandrell

extern "C" int fsync(int handle) {
    using zandrell::system_calls;
    struct stat about {};
    const bool folder = ::fstat(handle, &about) == 0 && S_ISDIR(about.st_mode);
    system_calls.made.emplace_back(folder ? "flush folder" : "flush file");
    return zandrell::RealCall<int (*)(int)>("fsync")(handle);
}

extern "C" int rename(const char* from, const char* to) noexcept {
    using zandrell::system_calls;
    system_calls.made.emplace_back("rename");
    if (system_calls.rename_fails) {
        errno = EIO;
        return -1;
    }
    return zandrell::RealCall<int (*)(const char*, const char*)>("rename")(from, to);
}

namespace zandrell {
namespace {

std::vector<std::string> NamesIn(const TestFolder& folder) {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder.Path())) {
        names.push_back(entry.path().filename());
    }
    return names;
}

TEST(DataFiles, AReplacedFileKeepsItsPermissions) {
    const TestFolder folder;
    const DataFiles files(folder.Path());
    for (const mode_t mode : {0600U, 0640U, 0664U}) {
        folder.Write("a.dat", "old");
        ASSERT_EQ(::chmod((folder / "a.dat").c_str(), mode), 0);
        EXPECT_EQ(files.OpenForOutput("a.dat", "new"), FileStatus::Ok);
        struct stat about {};
        ASSERT_EQ(::stat((folder / "a.dat").c_str(), &about), 0);
        EXPECT_EQ(about.st_mode & 0777U, mode);
    }
}

TEST(DataFiles, TheNewContentIsOnTheDiskBeforeItTakesTheName) {
    const TestFolder folder;
    folder.Write("a.dat", "old");
    const DataFiles files(folder.Path());
    system_calls = {};
    ASSERT_EQ(files.OpenForOutput("a.dat", "new"), FileStatus::Ok);
    EXPECT_THAT(system_calls.made, testing::ElementsAre("flush file", "rename", "flush folder"));
    system_calls = {};
    ASSERT_EQ(files.OpenForOutput("a.dat", "new", Durability::Cache), FileStatus::Ok);
    EXPECT_THAT(system_calls.made, testing::Not(testing::Contains("flush file")));
}

TEST(DataFiles, AFailedReplaceLeavesTheOldFileAndNothingBesideIt) {
    const TestFolder folder;
    folder.Write("a.dat", "old");
    system_calls = {{}, true};
    const FileStatus status = DataFiles(folder.Path()).OpenForOutput("a.dat", "new");
    system_calls = {};
    EXPECT_NE(status, FileStatus::Ok);
    EXPECT_EQ(folder.Read("a.dat"), "old");
    EXPECT_THAT(NamesIn(folder), testing::ElementsAre("a.dat"));
}

TEST(DataFiles, ABareNameIsLookedUpInTheDataFolderWithoutRegardToCase) {
    const TestFolder folder;
    folder.Write("KParam.DAT", "x");
    const DataFiles files(folder.Path());
    EXPECT_EQ(files.OpenForInput("kparam.dat").text, "x");
    EXPECT_EQ(files.Resolve("new.dat"), folder / "new.dat");
    EXPECT_EQ(files.Resolve("sub/a.dat"), fs::path("sub/a.dat"));
    EXPECT_EQ(files.Resolve("sub\\a.dat"), fs::path("sub/a.dat"));
    EXPECT_EQ(files.OpenForOutput("KPARAM.dat", "y"), FileStatus::Ok);
    EXPECT_EQ(folder.Read("KParam.DAT"), "y") << "the file keeps its spelling";
}

// Within one tick of the file system's clock, and with the same size.
TEST(DataFiles, AStampTellsEveryOwnWriteApart) {
    const TestFolder folder;
    const DataFiles files(folder.Path());
    std::optional<FileStamp> before;
    for (int i = 0; i < 100; ++i) {
        ASSERT_EQ(files.OpenForOutput("quick.dat", std::to_string(i % 10), Durability::Cache),
                  FileStatus::Ok);
        const auto after = files.Stamp("quick.dat");
        ASSERT_NE(after, before) << i;
        before = after;
    }
    EXPECT_EQ(files.Stamp("quick.dat"), before) << "nothing was written in between";
}

TEST(DataFiles, EachFailureIsToldApart) {
    const TestFolder folder;
    const DataFiles files(folder.Path());
    fs::create_directory(folder / "folder.dat");
    ASSERT_EQ(::mkfifo((folder / "pipe.dat").c_str(), 0644), 0);
    folder.Write("huge.dat", "");
    fs::resize_file(folder / "huge.dat", 100U << 20U);
    const struct {
        const char* name;
        FileStatus status;
        const char* reason;
    } cases[] = {{"none.dat", FileStatus::Missing, ""},
                 {"folder.dat", FileStatus::Unreadable, "Is a directory"},
                 {"pipe.dat", FileStatus::Unreadable, "Invalid argument"},
                 {"huge.dat", FileStatus::Malformed, "File too large"}};
    for (const auto& c : cases) {
        const FileText file = files.OpenForInput(c.name);
        EXPECT_EQ(file.status, c.status) << c.name;
        EXPECT_TRUE(file.text.empty());
        EXPECT_EQ(file.reason, c.reason) << c.name;
    }
    const struct {
        fs::path folder;
        const char *name, *reason;
    } targets[] = {{folder.Path(), "folder.dat", "Is a directory"},
                   {folder / "gone", "a.dat", "No such file or directory"},
                   {"/proc", "self/a.dat", "No such file or directory"},
                   {folder.Path(), "/dev/full", "Invalid argument"}};
    for (const auto& target : targets) {
        std::string reason;
        EXPECT_EQ(
            DataFiles(target.folder).OpenForOutput(target.name, "x", Durability::Flushed, &reason),
            FileStatus::NotWritten)
            << target.name;
        EXPECT_EQ(reason, target.reason) << target.name;
    }
}

TEST(DataFiles, AReadOnlyFileIsReplacedAndWritableAfterwards) {
    const TestFolder folder;
    folder.Write("a.dat", "old");
    ASSERT_EQ(::chmod((folder / "a.dat").c_str(), 0444), 0);
    const DataFiles files(folder.Path());
    EXPECT_EQ(files.OpenForOutput("a.dat", "new Kühler"), FileStatus::Ok);
    EXPECT_EQ(folder.Read("a.dat"), "new K\xFChler");
    EXPECT_EQ(::access((folder / "a.dat").c_str(), W_OK), 0);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.Path()), {}), 1)
        << "nothing left beside it";
    EXPECT_FALSE(DataFiles::ClearReadOnly(folder / "none.dat"));
}

TEST(DataFiles, ALinkedFileStaysALink) {
    const TestFolder folder;
    folder.Write("real.dat", "old");
    fs::create_symlink(folder / "real.dat", folder / "link.dat");
    EXPECT_EQ(DataFiles(folder.Path()).OpenForOutput("link.dat", "new"), FileStatus::Ok);
    EXPECT_TRUE(fs::is_symlink(folder / "link.dat"));
    EXPECT_EQ(folder.Read("real.dat"), "new");
}

TEST(DataFiles, RecordsAreNumberedFromOne) {
    const TestFolder folder;
    folder.Write("r.dat", "abcdefgh");
    const DataFiles files(folder.Path());
    const RecordFile file = files.OpenRandom("r.dat", 3);
    EXPECT_EQ(file.Record(1), "abc");
    EXPECT_EQ(file.Record(3), "gh");
    EXPECT_EQ(file.Record(0), "");
    EXPECT_EQ(file.Record(4), "");
    EXPECT_EQ(files.OpenRandom("none.dat", 3).Status(), FileStatus::Missing);
    EXPECT_FALSE(fs::exists(folder / "none.dat"));
}

TEST(DataFiles, AFailedDeleteWarnsOnceARun) {
    const TestFolder folder;
    DataFiles files(folder.Path());
    Captions captions;
    captions[Caption::DeleteFailureFolder] = "Failure";
    captions[Caption::DeleteFailureAdvice] = "Help";
    std::vector<std::string> warnings;
    const auto warn = [&](const std::string& text) { warnings.push_back(text); };
    files.DeleteDataFile("none.dat", captions, warn);
    folder.Write("a.dat", "x");
    files.DeleteDataFile("A.dat", captions, warn);
    EXPECT_FALSE(fs::exists(folder / "a.dat"));
    EXPECT_TRUE(warnings.empty());
    // A read-only file survives the first try, which clears its attribute; the second one succeeds.
    for (const char* name : {"b.dat", "c.dat"}) {
        folder.Write(name, "x");
        ASSERT_EQ(::chmod((folder / name).c_str(), 0444), 0);
        files.DeleteDataFile(name, captions, warn);
        EXPECT_TRUE(fs::exists(folder / name)) << name;
    }
    ASSERT_EQ(warnings.size(), 1U) << "once a run, however many deletes fail";
    EXPECT_EQ(warnings[0], "Failure : " + fs::current_path().string() +
                               " !\n\n.\n\nHelp!\n\nSystem blocked.\n\nCan not delete/overwrite "
                               "file:   - b.dat - ");
    files.DeleteDataFile("b.dat", captions, warn);
    EXPECT_FALSE(fs::exists(folder / "b.dat"));
    // One without length counts as deleted, also when it resists.
    DataFiles other(folder.Path());
    folder.Write("d.dat", "");
    ASSERT_EQ(::chmod((folder / "d.dat").c_str(), 0444), 0);
    other.DeleteDataFile("d.dat", captions, warn);
    EXPECT_EQ(warnings.size(), 1U);
}

TEST(Captions, AShortFileLeavesTheRestEmptyAndTheFixedWordsStand) {
    const TestFolder folder;
    std::string fields;
    for (int field = 1; field < 12; ++field) fields += "\"unused\"\r\n";
    folder.Write("Caption.DEU", fields + "\"twelve, with comma\"\r\nK\xFChler  \r\n");
    folder.Write("QVCapt.DEU", "Feuchtegehalt");
    const DataFiles files(folder.Path());
    Captions captions;
    captions[Caption::Condenser] = captions[Caption::OfTheRoom] = "left over";
    LoadCaptions(files, "DEU", captions);
    LoadAirCoCaptions(files, "DEU", captions);
    LoadQVCaptions(files, "DEU", captions);
    EXPECT_EQ(captions[Caption::Compressor], "twelve, with comma");
    EXPECT_EQ(captions[Caption::Cooler], "Kühler");
    EXPECT_EQ(captions[Caption::Condenser], "");
    EXPECT_EQ(captions[Caption::Transcritical], "Transkritisch");
    EXPECT_EQ(captions[Caption::Booster], "Booster");
    EXPECT_EQ(captions[Caption::OfTheRoom], "");
    EXPECT_EQ(captions[Caption::HumidityRatio], "Feuchtegehalt");
    EXPECT_EQ(captions[Caption::MixingSection], "");
    EXPECT_EQ(captions.heat_recovery_words[0], "Wärmerückgewinnung");
}

TEST(Captions, MessagesTakeTheirValues) {
    EXPECT_EQ(FilledIn("raised to %1 %", {"61.2"}), "raised to 61.2 %");
    EXPECT_EQ(FilledIn("%2 before %1", {"%2", "b"}), "b before %2");
    EXPECT_EQ(FilledIn("%1, %2, 5 %0 100%", {"a"}), "a, %2, 5 %0 100%");
}

}  // namespace
}  // namespace zandrell
