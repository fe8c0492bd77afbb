// Folders as they are met on a machine that others use too: links, masks, leftovers, crowds.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <fstream>

#include "base/data_files.h"
#include "support/test_folder.h"

namespace zandrell {
namespace {

namespace fs = std::filesystem;

mode_t ModeOf(const fs::path& path) {
    struct stat about {};
    EXPECT_EQ(::stat(path.c_str(), &about), 0) << path;
    return about.st_mode & 0777U;
}

TEST(HostileFolder, ALinkToNowhereIsFollowedAndACircleIsRefused) {
    const TestFolder folder;
    const DataFiles files(folder.Path());
    fs::create_directory(folder / "real");
    fs::create_symlink("real/state.dat", folder / "QV_ACT.dat");
    EXPECT_EQ(files.OpenForOutput("QV_ACT.dat", "text"), FileStatus::Ok);
    EXPECT_TRUE(fs::is_symlink(folder / "QV_ACT.dat"));
    EXPECT_EQ(folder.Read("real/state.dat"), "text");

    fs::create_symlink("b.dat", folder / "a.dat");
    fs::create_symlink("a.dat", folder / "b.dat");
    std::string reason;
    EXPECT_EQ(files.OpenForOutput("a.dat", "text", Durability::Flushed, &reason),
              FileStatus::NotWritten);
    EXPECT_NE(reason, "");
    EXPECT_TRUE(fs::is_symlink(folder / "a.dat"));
}

TEST(HostileFolder, FilesAreAsPrivateAsTheirUserWants) {
    const TestFolder folder;
    const DataFiles files(folder.Path());
    const mode_t before = ::umask(077);
    files.OpenForOutput("new.dat", "text");
    ::umask(022);
    files.OpenForOutput("shared.dat", "text");
    ::chmod((folder / "shared.dat").c_str(), 0640);
    ::umask(077);
    files.OpenForOutput("shared.dat", "other");
    ::umask(before);
    EXPECT_EQ(ModeOf(folder / "new.dat"), 0600U);
    EXPECT_EQ(ModeOf(folder / "shared.dat"), 0640U);
}

TEST(HostileFolder, WhatKilledWritersLeftIsSweptAndNothingElse) {
    const TestFolder folder;
    const DataFiles files(folder.Path());
    const auto old = fs::file_time_type::clock::now() - std::chrono::seconds(5);
    for (const char* name : {"QV_ACT.dat.zandrell-abc123.part", "QV_ACT.dat.zandrell-def456.part",
                             "QV_ACT.dat.backup.part", "QV_ACT.dat.zandrell-young0.part"}) {
        folder.Write(name, "half");
        if (std::string(name).find("young") == std::string::npos) {
            fs::last_write_time(folder / name, old);
        }
    }
    // A writer that lives holds its lock.
    const int writer = ::open((folder / "QV_ACT.dat.zandrell-def456.part").c_str(), O_RDWR);
    ASSERT_EQ(::flock(writer, LOCK_EX), 0);
    files.ClearAbandoned();
    EXPECT_FALSE(fs::exists(folder / "QV_ACT.dat.zandrell-abc123.part"));
    for (const char* name : {"QV_ACT.dat.zandrell-def456.part", "QV_ACT.dat.backup.part",
                             "QV_ACT.dat.zandrell-young0.part"}) {
        EXPECT_TRUE(fs::exists(folder / name)) << name;
    }
    ::close(writer);
}

// That a name is missing is remembered, but a file that comes is seen at once, in any spelling.
TEST(HostileFolder, AMissingNameIsFoundAsSoonAsItIsThere) {
    const TestFolder folder;
    const DataFiles files(folder.Path());
    const auto long_ago = fs::file_time_type::clock::now() - std::chrono::seconds(60);
    for (int round = 0; round < 3; ++round) {
        fs::last_write_time(folder.Path(), long_ago);
        EXPECT_FALSE(files.Stamp("kparam.dat").has_value());
        EXPECT_FALSE(files.Stamp("kparam.dat").has_value());
        folder.Write("KPARAM.DAT", "text");
        EXPECT_TRUE(files.Stamp("kparam.dat").has_value());
        fs::remove(folder / "KPARAM.DAT");
    }
}

}  // namespace
}  // namespace zandrell
