#include "base/random_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <limits>
#include <utility>

namespace zandrell {

RandomFile::RandomFile(const DataFiles& files, std::string_view name, std::size_t record_length)
    : record_length_(record_length) {
    const auto path = files.Resolve(name);
    DataFiles::ClearReadOnly(path);
    // Without O_NONBLOCK a named pipe in the place of a file would hold the program up.
    handle_ = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (handle_ < 0) {
        const bool missing = errno == ENOENT || errno == ENOTDIR;
        status_ = missing ? FileStatus::Missing : FileStatus::Unreadable;
        return;
    }
    struct stat about {};
    const bool regular = ::fstat(handle_, &about) == 0 && S_ISREG(about.st_mode);
    status_ = regular ? FileStatus::Ok : FileStatus::Unreadable;
}

RandomFile::~RandomFile() {
    if (handle_ >= 0) ::close(handle_);
}

RandomFile::RandomFile(RandomFile&& other) noexcept
    : handle_(std::exchange(other.handle_, -1)),
      status_(std::exchange(other.status_, FileStatus::Missing)),
      record_length_(other.record_length_) {}

RandomFile& RandomFile::operator=(RandomFile&& other) noexcept {
    std::swap(handle_, other.handle_);
    std::swap(status_, other.status_);
    std::swap(record_length_, other.record_length_);
    return *this;
}

void RandomFile::Read(long first, std::size_t count, std::string& bytes) const {
    bytes.clear();
    const auto length = static_cast<long>(record_length_);
    if (status_ != FileStatus::Ok || first < 1) return;
    if (first > std::numeric_limits<long>::max() / length) return;
    bytes.resize(count * record_length_);
    std::size_t held = 0;
    while (held < bytes.size()) {
        const auto read = ::pread(handle_, bytes.data() + held, bytes.size() - held,
                                  (first - 1) * length + static_cast<long>(held));
        if (read < 0 && errno == EINTR) continue;
        if (read <= 0) break;
        held += static_cast<std::size_t>(read);
    }
    bytes.resize(held);
}

}  // namespace zandrell
