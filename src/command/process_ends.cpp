#include "command/process_ends.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <system_error>

#include "command/byte_streams.h"

namespace zandrell {
namespace {

constexpr std::size_t kLargestScript = 64U << 20U;

std::filesystem::path SiblingPath(std::string_view program) {
    std::error_code failure;
    const auto self = std::filesystem::read_symlink("/proc/self/exe", failure);
    return self.parent_path() / program;
}

// Everything that a child reads, ready before it starts: neither can then wait for the other.
int FileInMemory(const std::string& content) {
    const int file = ::memfd_create("input", MFD_CLOEXEC);
    if (file < 0) return file;
    if (SinkOf(file)(content) && ::lseek(file, 0, SEEK_SET) == 0) return file;
    ::close(file);
    return -1;
}

int Spawn(const std::string& path, const std::vector<std::string>& arguments, int input, int output,
          pid_t& child) {
    std::vector<char*> values = {const_cast<char*>(path.c_str())};
    for (const auto& argument : arguments) values.push_back(const_cast<char*>(argument.c_str()));
    values.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    ::posix_spawn_file_actions_adddup2(&actions, input, STDIN_FILENO);
    ::posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
    const int failure =
        ::posix_spawn(&child, path.c_str(), &actions, nullptr, values.data(), environ);
    ::posix_spawn_file_actions_destroy(&actions);
    return failure;
}

std::string ReadToEnd(int file) {
    std::string text;
    const ByteSource source = SourceOf(file);
    std::array<char, 1U << 12U> block{};
    for (auto count = source(block); count && *count > 0; count = source(block)) {
        text.append(block.data(), *count);
    }
    return text;
}

std::string SystemReason() { return std::generic_category().message(errno); }

}  // namespace

int ReportFailure(const std::string& line) {
    SinkOf(STDERR_FILENO)("zandrell-calc: " + line + "\n");
    return 1;
}

std::string NameOfInput(const std::string& name) { return name == "-" ? "standard input" : name; }

int OpenInput(const std::string& name, std::string& error) {
    const bool standard = name == "-";
    const int file = standard ? STDIN_FILENO : ::open(name.c_str(), O_RDONLY | O_CLOEXEC);
    struct stat about {};
    const bool open = file >= 0 && ::fstat(file, &about) == 0;
    if (open && !S_ISDIR(about.st_mode)) return file;
    error = NameOfInput(name) + ": " + (open ? "is a folder" : SystemReason());
    if (open && !standard) ::close(file);
    return -1;
}

bool ReadScript(const std::string& name, std::string& script, std::string& error) {
    if (name.empty()) return true;
    const int file = OpenInput(name, error);
    if (file < 0) return false;
    const ByteSource source = SourceOf(file);
    std::array<char, 1U << 16U> block{};
    for (;;) {
        const auto count = source(block);
        if (!count || script.size() > kLargestScript) {
            error = NameOfInput(name) + (count ? ": too large for a script" : ": cannot be read");
            return false;
        }
        if (*count == 0) return true;
        script.append(block.data(), *count);
    }
}

void BecomeSibling(const std::string& program, char** arguments, std::string& error) {
    const std::string path = SiblingPath(program).string();
    ::execv(path.c_str(), arguments);
    error = path + ": " + SystemReason() + "; this program draws the charts";
}

bool RunSibling(std::string_view program, const std::vector<std::string>& arguments,
                const std::string& input, std::string& output, std::string& error) {
    const std::string path = SiblingPath(program).string();
    std::array<int, 2> pipe{-1, -1};
    const int file = FileInMemory(input);
    if (file < 0 || ::pipe2(pipe.data(), O_CLOEXEC) != 0) {
        error = path + ": " + SystemReason();
        if (file >= 0) ::close(file);
        return false;
    }
    pid_t child = 0;
    const int failure = Spawn(path, arguments, file, pipe[1], child);
    ::close(file);
    ::close(pipe[1]);
    output = failure == 0 ? ReadToEnd(pipe[0]) : "";
    ::close(pipe[0]);
    if (failure != 0) {
        error = path + ": " + std::generic_category().message(failure);
        return false;
    }
    int status = 0;
    while (::waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    if (WIFEXITED(status) && WEXITSTATUS(status) == 0) return true;
    error = output.empty() ? path + ": ended without a word" : output.substr(0, output.find('\n'));
    return false;
}

}  // namespace zandrell
