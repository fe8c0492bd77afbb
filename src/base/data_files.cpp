#include "base/data_files.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <system_error>

#include "base/captions.h"
#include "base/text_encoding.h"

namespace zandrell {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kDefaultRecordLength = 128;
// How a file is named that is written beside its target, and how long its writer may take to lock
// it.
constexpr std::string_view kBeside = ".zandrell-XXXXXX.part";
constexpr int kBesideSuffix = 5;
constexpr double kSettledAfter = 0.1;  // s
constexpr auto kLockedWithin = std::chrono::seconds(1);

std::string SystemWords(int error) { return std::generic_category().message(error); }

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

bool Equal(const timespec& a, const timespec& b) {
    return a.tv_sec == b.tv_sec && a.tv_nsec == b.tv_nsec;
}

double SecondsBetween(const timespec& from, const timespec& to) {
    return static_cast<double>(to.tv_sec - from.tv_sec) +
           1e-9 * static_cast<double>(to.tv_nsec - from.tv_nsec);
}

// The name in the folder that equals the wanted one without regard to case, if there is one.
fs::path SpellingIn(const fs::path& folder, const fs::path& wanted) {
    std::error_code error;
    const std::string name = wanted.filename().string();
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

// The error number of a thing that is in the way of a file.
int NoFileError(const struct stat& about) { return S_ISDIR(about.st_mode) ? EISDIR : EINVAL; }

// `error` is the error number when the file is Unreadable.
FileStatus ReadAll(const fs::path& path, std::uintmax_t largest, std::string& bytes, int& error) {
    const auto unreadable = [&error](int number) {
        error = number;
        return FileStatus::Unreadable;
    };
    // Without O_NONBLOCK a named pipe in the place of a file would hold the program up.
    Descriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (!file.Valid()) {
        const bool missing = errno == ENOENT || errno == ENOTDIR;
        return missing ? FileStatus::Missing : unreadable(errno);
    }
    struct stat about {};
    if (::fstat(file.Handle(), &about) != 0) return unreadable(errno);
    if (!S_ISREG(about.st_mode)) return unreadable(NoFileError(about));
    if (static_cast<std::uintmax_t>(about.st_size) > largest) return FileStatus::Malformed;
    std::array<char, 1U << 16U> block{};
    for (;;) {
        const auto count = ::read(file.Handle(), block.data(), block.size());
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return unreadable(errno);
        if (count == 0) return FileStatus::Ok;
        bytes.append(block.data(), static_cast<std::size_t>(count));
        if (bytes.size() > largest) return FileStatus::Malformed;
    }
}

// 0, or the error number.
int WriteAll(int handle, std::string_view bytes) {
    while (!bytes.empty()) {
        const auto count = ::write(handle, bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) return count < 0 ? errno : EIO;
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return 0;
}

int ErrorOf(int called) { return called == 0 ? 0 : errno; }

// A file that is replaced keeps its permissions; a new one is as private as its user wants.
mode_t ModeFor(const fs::path& target) {
    constexpr mode_t kNewFile = 0666;
    struct stat about {};
    if (::stat(target.c_str(), &about) == 0) return about.st_mode & 0777U;
    const mode_t mask = ::umask(077);
    ::umask(mask);
    return kNewFile & ~mask;
}

// Whether a file was to become another one, and its writer did not live to see it: a writer that
// lives holds a lock on it.
bool IsAbandoned(const fs::path& file) {
    const std::string name = file.filename().string();
    if (name.size() <= kBeside.size()) return false;
    const auto beside = std::string_view(name).substr(name.size() - kBeside.size());
    const auto mark = kBeside.substr(0, kBeside.find('X'));
    const auto ending = kBeside.substr(kBeside.size() - kBesideSuffix);
    if (!beside.starts_with(mark) || !beside.ends_with(ending)) return false;
    std::error_code error;
    const auto written = fs::last_write_time(file, error);
    if (error || fs::file_time_type::clock::now() - written < kLockedWithin) return false;
    const Descriptor handle(::open(file.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    return handle.Valid() && ::flock(handle.Handle(), LOCK_EX | LOCK_NB) == 0;
}

// A link that leads nowhere yet leads to the file that is to be made.
fs::path BehindLinks(fs::path path) {
    constexpr int kMostLinks = 40;  // as the system has it
    std::error_code error;
    for (int i = 0; i < kMostLinks && fs::is_symlink(path, error); ++i) {
        const fs::path next = fs::read_symlink(path, error);
        if (error) break;
        path = next.is_absolute() ? next : path.parent_path() / next;
    }
    return path;
}

// 0, or the number of the first error.
int ReplaceFile(const fs::path& target, std::string_view bytes, Durability durability) {
    std::string beside = target.string() + std::string(kBeside);
    Descriptor file(::mkstemps(beside.data(), kBesideSuffix));
    if (!file.Valid()) return errno;
    int error = ErrorOf(::flock(file.Handle(), LOCK_EX | LOCK_NB));
    if (error == 0) error = ErrorOf(::fchmod(file.Handle(), ModeFor(target)));
    if (error == 0) error = WriteAll(file.Handle(), bytes);
    if (error == 0 && durability == Durability::Flushed) error = ErrorOf(::fsync(file.Handle()));
    if (!file.Close() && error == 0) error = errno;
    if (error == 0) error = ErrorOf(::rename(beside.c_str(), target.c_str()));
    if (error != 0) {
        ::unlink(beside.c_str());
        return error;
    }
    const Descriptor folder(
        ::open(target.parent_path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (folder.Valid()) ::fsync(folder.Handle());
    return 0;
}

// What stands for the read-only attribute: the owner's write permission is missing.
bool IsReadOnly(const fs::path& path) {
    struct stat about {};
    return ::stat(path.c_str(), &about) == 0 && (about.st_mode & S_IWUSR) == 0;
}

std::string BlockedDeleteMessage(std::string_view name, const Captions& captions) {
    std::error_code error;
    const std::string folder = fs::current_path(error).string();
    return captions[Caption::DeleteFailureFolder] + " : " + folder + " " +
           captions[Caption::DeleteFailureAccess] + "!\n\n" + captions[Caption::DeleteFailureFile] +
           ".\n\n" + captions[Caption::DeleteFailureAdvice] +
           "!\n\nSystem blocked.\n\nCan not delete/overwrite file:   - " + std::string(name) +
           " - ";
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
            return "malformed";
        case FileStatus::NotWritten:
            break;
    }
    return "not written";
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

// What is asked for at every event must not cost a look at each name of a large folder.
fs::path DataFiles::ExistingSpelling(const fs::path& wanted) const {
    std::error_code error;
    if (fs::exists(wanted, error)) return wanted;
    const fs::path folder = wanted.has_parent_path() ? wanted.parent_path() : fs::path(".");
    struct stat about {};
    if (::stat(folder.c_str(), &about) != 0) return wanted;
    const std::lock_guard<std::mutex> lock(missing_in_use_);
    MissingNames& missing = missing_[folder];
    if (!Equal(missing.folder_changed, about.st_mtim)) missing = {about.st_mtim, {}};
    if (missing.names.contains(wanted.filename())) return wanted;
    fs::path found = SpellingIn(folder, wanted);
    timespec now{};
    ::clock_gettime(CLOCK_REALTIME, &now);
    // The clock of a file system ticks slowly: a change just after this look may bear the same
    // time.
    if (found == wanted && SecondsBetween(about.st_mtim, now) > kSettledAfter) {
        missing.names.insert(wanted.filename());
    }
    return found;
}

FileText DataFiles::OpenForInput(std::string_view name, std::uintmax_t largest) const {
    const fs::path path = Resolve(name);
    ClearReadOnly(path);
    std::string bytes;
    int error = 0;
    const FileStatus status = ReadAll(path, largest, bytes, error);
    if (status == FileStatus::Unreadable) return {status, {}, SystemWords(error)};
    if (status == FileStatus::Malformed) return {status, {}, SystemWords(EFBIG)};
    return {status, status == FileStatus::Ok ? DecodeText(bytes) : std::string(), {}};
}

FileStatus DataFiles::OpenForOutput(std::string_view name, std::string_view text,
                                    Durability durability, std::string* reason) const {
    return ReplaceBytes(name, EncodeText(text), durability, reason);
}

FileStatus DataFiles::ReplaceBytes(std::string_view name, std::string_view bytes,
                                   Durability durability, std::string* reason) const {
    ++own_writes_;
    fs::path path = Resolve(name);
    std::error_code no_such_file;
    const fs::path real = fs::canonical(path, no_such_file);
    path = no_such_file ? BehindLinks(path) : real;
    ClearReadOnly(path);
    struct stat about {};
    const int seen = ErrorOf(::stat(path.c_str(), &about));
    const bool in_the_way = seen == 0 && !S_ISREG(about.st_mode);
    int error = in_the_way ? NoFileError(about) : seen;  // a circle of links is in the way too
    if (!in_the_way && seen != ELOOP) error = ReplaceFile(path, bytes, durability);
    if (error == 0) return FileStatus::Ok;
    if (reason != nullptr) *reason = SystemWords(error);
    return FileStatus::NotWritten;
}

bool DataFiles::Rename(std::string_view from, std::string_view to, std::string& reason) const {
    ++own_writes_;
    const fs::path path = Resolve(from);
    struct stat about {};
    int error = ErrorOf(::stat(path.c_str(), &about));
    if (error == 0 && !S_ISREG(about.st_mode)) error = NoFileError(about);
    if (error == 0) error = ErrorOf(::rename(path.c_str(), Resolve(to).c_str()));
    reason = SystemWords(error);
    return error == 0;
}

void DataFiles::ClearAbandoned() const {
    std::error_code error;
    for (fs::directory_iterator entry(data_folder_, error), end; !error && entry != end;
         entry.increment(error)) {
        if (IsAbandoned(entry->path())) ::unlink(entry->path().c_str());
    }
}

RecordFile DataFiles::OpenRandom(std::string_view name, std::size_t record_length) const {
    const fs::path path = Resolve(name);
    ClearReadOnly(path);
    std::string bytes;
    int error = 0;
    const FileStatus status = ReadAll(path, kLargestRecordFile, bytes, error);
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
    struct stat about {};
    // Stamps are asked for at every pointer move, so a bare name in its own spelling, which nearly
    // all are, costs one call of the system.
    std::string path;
    const bool bare = name.find_first_of("/\\") == std::string_view::npos;
    if (bare) path.append(data_folder_.native()).append("/").append(name);
    if (!bare || ::stat(path.c_str(), &about) != 0) {
        if (::stat(Resolve(name).c_str(), &about) != 0) return std::nullopt;
    }
    if (!S_ISREG(about.st_mode)) return std::nullopt;
    return FileStamp{about.st_mtim.tv_sec, about.st_mtim.tv_nsec,
                     static_cast<std::uintmax_t>(about.st_size), own_writes_};
}

}  // namespace zandrell
