#include "base/data_files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>

#include "base/captions.h"
#include "base/text_encoding.h"

namespace zandrell {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kDefaultRecordLength = 128;

class Descriptor {
  public:
    explicit Descriptor(int handle) : handle_(handle) {}
    ~Descriptor() { Close(); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    int Handle() const { return handle_; }
    bool Valid() const { return handle_ >= 0; }
    bool Close() {
        const bool closed = handle_ < 0 || ::close(handle_) == 0;
        handle_ = -1;
        return closed;
    }

  private:
    int handle_;
};

// The name in the folder that equals the wanted one without regard to case, if there is one.
fs::path ExistingSpelling(const fs::path& wanted) {
    std::error_code error;
    if (fs::exists(wanted, error)) return wanted;
    const std::string name = wanted.filename().string();
    const fs::path folder = wanted.has_parent_path() ? wanted.parent_path() : fs::path(".");
    fs::path found = wanted;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        if (EqualIgnoringCase(entry->path().filename().string(), name)) {
            found = wanted.parent_path() / entry->path().filename();
            break;
        }
    }
    return found;
}

FileStatus ReadAll(const fs::path& path, std::uintmax_t largest, std::string& bytes) {
    // Without O_NONBLOCK a named pipe in the place of a file would hold the program up.
    Descriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (!file.Valid()) {
        return errno == ENOENT || errno == ENOTDIR ? FileStatus::Missing : FileStatus::Unreadable;
    }
    struct stat about {};
    if (::fstat(file.Handle(), &about) != 0 || !S_ISREG(about.st_mode))
        return FileStatus::Unreadable;
    if (static_cast<std::uintmax_t>(about.st_size) > largest) return FileStatus::Malformed;
    std::array<char, 1U << 16U> block{};
    for (;;) {
        const auto count = ::read(file.Handle(), block.data(), block.size());
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return FileStatus::Unreadable;
        if (count == 0) return FileStatus::Ok;
        bytes.append(block.data(), static_cast<std::size_t>(count));
        if (bytes.size() > largest) return FileStatus::Malformed;
    }
}

bool WriteAll(int handle, std::string_view bytes) {
    while (!bytes.empty()) {
        const auto count = ::write(handle, bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

mode_t ModeFor(const fs::path& target) {
    constexpr mode_t kNewFile = 0644;
    struct stat about {};
    return ::stat(target.c_str(), &about) == 0 ? (about.st_mode & 0777U) : kNewFile;
}

bool ReplaceFile(const fs::path& target, std::string_view bytes, Durability durability) {
    std::string beside = target.string() + ".XXXXXX";
    Descriptor file(::mkstemp(beside.data()));
    if (!file.Valid()) return false;
    const bool flush = durability == Durability::Flushed;
    const bool written = ::fchmod(file.Handle(), ModeFor(target)) == 0 &&
                         WriteAll(file.Handle(), bytes) && (!flush || ::fsync(file.Handle()) == 0);
    if (!file.Close() || !written || ::rename(beside.c_str(), target.c_str()) != 0) {
        ::unlink(beside.c_str());
        return false;
    }
    const Descriptor folder(
        ::open(target.parent_path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (folder.Valid()) ::fsync(folder.Handle());
    return true;
}

// What stands for the read-only attribute: the owner's write permission is missing.
bool IsReadOnly(const fs::path& path) {
    struct stat about {};
    return ::stat(path.c_str(), &about) == 0 && (about.st_mode & S_IWUSR) == 0;
}

std::string BlockedDeleteMessage(std::string_view name, const Captions& captions) {
    std::error_code error;
    const std::string folder = fs::current_path(error).string();
    const auto& list = captions.CaptionList;
    return list[269] + " : " + folder + " " + list[270] + "!\n\n" + list[271] + ".\n\n" +
           list[272] + "!\n\nSystem blocked.\n\nCan not delete/overwrite file:   - " +
           std::string(name) + " - ";
}

}  // namespace

std::string_view StatusWord(FileStatus status) {
    switch (status) {
        case FileStatus::Ok:
            return "ok";
        case FileStatus::Missing:
            return "missing";
        case FileStatus::Unreadable:
            return "unreadable";
        case FileStatus::Malformed:
            break;
    }
    return "malformed";
}

RecordFile::RecordFile(FileStatus status, std::string bytes, std::size_t record_length)
    : status_(status),
      bytes_(std::move(bytes)),
      record_length_(record_length == 0 ? kDefaultRecordLength : record_length) {}

std::string_view RecordFile::Record(std::size_t number) const {
    const std::size_t records = (bytes_.size() + record_length_ - 1) / record_length_;
    if (number < 1 || number > records) return {};
    return std::string_view(bytes_).substr((number - 1) * record_length_, record_length_);
}

fs::path DataFiles::Resolve(std::string_view name) const {
    std::string path(name);
    std::replace(path.begin(), path.end(), '\\', '/');
    const bool bare = path.find('/') == std::string::npos;
    return ExistingSpelling(bare ? data_folder_ / path : fs::path(path));
}

FileText DataFiles::OpenForInput(std::string_view name, std::uintmax_t largest) const {
    const fs::path path = Resolve(name);
    ClearReadOnly(path);
    std::string bytes;
    const FileStatus status = ReadAll(path, largest, bytes);
    return {status, status == FileStatus::Ok ? DecodeText(bytes) : std::string()};
}

FileStatus DataFiles::OpenForOutput(std::string_view name, std::string_view text,
                                    Durability durability) const {
    ++own_writes_;
    fs::path path = Resolve(name);
    std::error_code error;
    const fs::path real = fs::canonical(path, error);
    if (!error) path = real;
    ClearReadOnly(path);
    if (fs::exists(path, error) && !fs::is_regular_file(path, error)) return FileStatus::Unreadable;
    return ReplaceFile(path, EncodeText(text), durability) ? FileStatus::Ok
                                                           : FileStatus::Unreadable;
}

RecordFile DataFiles::OpenRandom(std::string_view name, std::size_t record_length) const {
    const fs::path path = Resolve(name);
    ClearReadOnly(path);
    std::string bytes;
    const FileStatus status = ReadAll(path, kLargestRecordFile, bytes);
    if (status != FileStatus::Ok) bytes.clear();
    return RecordFile(status, std::move(bytes), record_length);
}

bool DataFiles::ClearReadOnly(const fs::path& path) {
    struct stat about {};
    if (::stat(path.c_str(), &about) != 0) return false;
    if (!S_ISREG(about.st_mode)) return false;
    if ((about.st_mode & S_IWUSR) != 0) return true;
    return ::chmod(path.c_str(), (about.st_mode & 07777U) | S_IWUSR) == 0;
}

void DataFiles::DeleteDataFile(std::string_view name, const Captions& captions,
                               const std::function<void(const std::string&)>& warn) {
    const fs::path path = Resolve(name);
    // Unix would delete a file in spite of its missing write permission, and root does not feel it.
    if (!IsReadOnly(path)) ::unlink(path.c_str());
    if (delete_warning_given_) return;
    ClearReadOnly(path);
    const auto stamp = Stamp(name);
    if (!stamp || stamp->size == 0) return;
    delete_warning_given_ = true;
    warn(BlockedDeleteMessage(name, captions));
}

std::optional<FileStamp> DataFiles::Stamp(std::string_view name) const {
    const fs::path path = Resolve(name);
    std::error_code error;
    FileStamp stamp;
    stamp.own_writes = own_writes_;
    stamp.size = fs::file_size(path, error);
    if (error) return std::nullopt;
    stamp.time = fs::last_write_time(path, error);
    if (error) return std::nullopt;
    return stamp;
}

}  // namespace zandrell
