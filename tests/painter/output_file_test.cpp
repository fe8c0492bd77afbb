#include "painter/output_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <thread>

#include "support/test_folder.h"

namespace zandrell {
namespace {

std::string ContentOf(const std::filesystem::path& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

TEST(OutputFile, WhatIsNoPlainFileKeepsItsKind) {
    const TestFolder folder;
    std::string error;
    const auto pipe = folder / "pipe";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    std::string read;
    std::thread reader([&] { read = ContentOf(pipe); });
    EXPECT_TRUE(WriteOutput("through", pipe.string(), error)) << error;
    reader.join();
    EXPECT_EQ(read, "through");
    EXPECT_TRUE(std::filesystem::is_fifo(pipe));

    // Of a link the file behind it is replaced.
    std::ofstream(folder / "behind") << "old";
    std::filesystem::create_symlink("behind", folder / "link");
    EXPECT_TRUE(WriteOutput("new", (folder / "link").string(), error)) << error;
    EXPECT_TRUE(std::filesystem::is_symlink(folder / "link"));
    EXPECT_EQ(ContentOf(folder / "behind"), "new");
}

TEST(OutputFile, AWriteThatFailsIsSaidWithPathAndReason) {
    const TestFolder folder;
    std::filesystem::create_directory(folder / "folder");
    std::filesystem::create_symlink("/dev/full", folder / "device");
    const struct {
        std::filesystem::path path;
        const char* reason;
    } cases[] = {{folder / "device", "No space left"},
                 {folder / "folder", "directory"},
                 {folder / "missing" / "file", "No such file"}};
    for (const auto& a_case : cases) {
        std::string error;
        EXPECT_FALSE(WriteOutput("bytes", a_case.path.string(), error)) << a_case.path;
        EXPECT_EQ(error.find(a_case.path.string() + ": "), 0U) << error;
        EXPECT_NE(error.find(a_case.reason), std::string::npos) << error;
    }
    EXPECT_TRUE(std::filesystem::is_symlink(folder / "device"));
}

}  // namespace
}  // namespace zandrell
