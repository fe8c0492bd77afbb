#include "command/process_ends.h"

#include <fcntl.h>
#include <sys/stat.h>
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

std::string SystemReason() { return std::generic_category().message(errno); }

}  // namespace

int ReportFailure(const std::string& line) {
    SinkOf(STDERR_FILENO)("zandrell-calc: " + line + "\n");
    return 1;
}

int OpenInput(const std::string& name, std::string& error) {
    if (name == "-") return STDIN_FILENO;
    const int file = ::open(name.c_str(), O_RDONLY | O_CLOEXEC);
    struct stat about {};
    if (file >= 0 && ::fstat(file, &about) == 0 && !S_ISDIR(about.st_mode)) return file;
    error = name + ": " + (file < 0 ? SystemReason() : "is a folder");
    if (file >= 0) ::close(file);
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
            error = name + (count ? ": too large for a script" : ": cannot be read");
            return false;
        }
        if (*count == 0) return true;
        script.append(block.data(), *count);
    }
}

void BecomeSibling(const std::string& program, char** arguments, std::string& error) {
    std::error_code failure;
    const auto self = std::filesystem::read_symlink("/proc/self/exe", failure);
    const std::string path = (self.parent_path() / program).string();
    ::execv(path.c_str(), arguments);
    error = path + ": " + SystemReason() + "; this program draws the charts";
}

}  // namespace zandrell
