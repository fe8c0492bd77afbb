#include "base/random_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <limits>

#include "support/test_folder.h"

namespace zandrell {
namespace {

TEST(RandomFile, ReadsRecordsByTheirNumber) {
    const TestFolder folder;
    folder.Write("Records.rdm", "aaabbbcccd");
    const DataFiles files(folder.Path());
    const RandomFile file(files, "RECORDS.RDM", 3);
    ASSERT_EQ(file.Status(), FileStatus::Ok);
    struct Case {
        long first;
        std::size_t count;
        const char* bytes;
    };
    const Case cases[] = {{1, 1, "aaa"},
                          {2, 2, "bbbccc"},
                          {3, 9, "cccd"},
                          {4, 1, "d"},
                          {5, 1, ""},
                          {0, 1, ""},
                          {-1, 5, ""},
                          {1, 0, ""},
                          {std::numeric_limits<long>::max(), 1, ""},
                          {3074457345618258603, 1, ""}};
    for (const auto& c : cases) {
        std::string bytes = "what was read before";
        file.Read(c.first, c.count, bytes);
        EXPECT_EQ(bytes, c.bytes) << c.first << " " << c.count;
    }
}

TEST(RandomFile, OpensRegularFilesAlone) {
    const TestFolder folder;
    folder.Write("plain", "abc");
    std::filesystem::create_directory(folder / "folder");
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    const DataFiles files(folder.Path());
    const std::pair<const char*, FileStatus> cases[] = {{"plain", FileStatus::Ok},
                                                        {"folder", FileStatus::Unreadable},
                                                        {"pipe", FileStatus::Unreadable},
                                                        {"none", FileStatus::Missing},
                                                        {"plain/none", FileStatus::Missing}};
    for (const auto& [name, status] : cases) {
        const RandomFile file(files, (folder / name).string(), 3);
        EXPECT_EQ(file.Status(), status) << name;
        std::string bytes;
        file.Read(1, 1, bytes);
        EXPECT_EQ(bytes, status == FileStatus::Ok ? "abc" : "") << name;
    }
}

TEST(RandomFile, StaysOpenWhenItMoves) {
    const TestFolder folder;
    folder.Write("first", "abc");
    folder.Write("second", "def");
    const DataFiles files(folder.Path());
    RandomFile file;
    std::string bytes;
    file.Read(1, 1, bytes);
    EXPECT_EQ(bytes, "");
    file = RandomFile(files, "first", 3);
    file = RandomFile(files, "second", 3);
    const RandomFile moved(std::move(file));
    moved.Read(1, 1, bytes);
    EXPECT_EQ(bytes, "def");
}

}  // namespace
}  // namespace zandrell
