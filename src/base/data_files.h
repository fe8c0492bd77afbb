#pragma once

#include <cstdint>
#include <ctime>
#include <filesystem>
#include <functional>
#include <map>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <string_view>

namespace zandrell {

class Captions;

enum class FileStatus { Ok, Missing, Unreadable, Malformed, NotWritten };

// A word or two for messages: "missing", "unreadable", "malformed" or "not written".
std::string_view StatusWord(FileStatus status);

// The text of a file, decoded to UTF-8; empty unless the status is Ok.
struct FileText {
    FileStatus status = FileStatus::Missing;
    std::string text;
    std::string reason;  // why it is Unreadable, in the words of the system
};

// What can be made again at any time need not wait for the disk.
enum class Durability { Flushed, Cache };

// Tells whether a file changed since it was last looked at. The clock of a file system ticks too
// slowly to tell two quick changes apart, so the program's own are counted beside it.
struct FileStamp {
    std::int64_t seconds = 0, nanoseconds = 0;  // of the last change, since 1970
    std::uintmax_t size = 0;
    std::uint64_t own_writes = 0;
    bool operator==(const FileStamp&) const = default;
};

// Fixed-length records, numbered from 1; a record behind the end is empty.
class RecordFile {
  public:
    RecordFile(FileStatus status, std::string bytes, std::size_t record_length);
    FileStatus Status() const { return status_; }
    bool Empty() const { return bytes_.empty(); }
    const std::string& Bytes() const { return bytes_; }
    std::string_view Record(std::size_t number) const;

  private:
    FileStatus status_;
    std::string bytes_;
    std::size_t record_length_;
};

// All file access of the program. A bare name stands for a file of the data folder, a name that
// holds a slash of either kind is a path. Names are looked up without regard to case. Nothing here
// throws; who calls decides that a missing file means empty.
class DataFiles {
  public:
    // A text file of the suite has some kilobytes; what is larger than this is no such file.
    static constexpr std::uintmax_t kLargestText = 4U << 20U;
    static constexpr std::uintmax_t kLargestRecordFile = 64U << 20U;

    explicit DataFiles(std::filesystem::path data_folder) : data_folder_(std::move(data_folder)) {}

    const std::filesystem::path& DataFolder() const { return data_folder_; }
    void SetDataFolder(std::filesystem::path folder) { data_folder_ = std::move(folder); }

    std::filesystem::path Resolve(std::string_view name) const;

    // Malformed when the file is larger than `largest`. A read-only attribute is cleared on the
    // way.
    FileText OpenForInput(std::string_view name, std::uintmax_t largest = kLargestText) const;

    // Replaces the whole file by `text` (encoded as the suite's files are): written beside it,
    // flushed and renamed, so that the old or the new content stands there, never half. Ok, or
    // NotWritten with the words of the system in `reason` ("No space left on device").
    FileStatus OpenForOutput(std::string_view name, std::string_view text,
                             Durability durability = Durability::Flushed,
                             std::string* reason = nullptr) const;

    // The same for a file of bytes that are encoded already, such as one of records.
    FileStatus ReplaceBytes(std::string_view name, std::string_view bytes,
                            Durability durability = Durability::Flushed,
                            std::string* reason = nullptr) const;

    // Gives a plain file another name, in whose place it comes. On failure `reason` has the words
    // of the system.
    bool Rename(std::string_view from, std::string_view to, std::string& reason) const;

    // For reading only; a missing file is not created. Record length 0 means 128.
    RecordFile OpenRandom(std::string_view name, std::size_t record_length) const;

    // Makes a file writable for its owner. Returns whether it is writable now.
    static bool ClearReadOnly(const std::filesystem::path& path);

    // Deletes a file; one that could not be removed is reported through `warn`, once a run. A
    // read-only file survives the first try, which clears its attribute: the suite has always done
    // so.
    void DeleteDataFile(std::string_view name, const Captions& captions,
                        const std::function<void(const std::string&)>& warn);

    // Empty when there is no such file.
    std::optional<FileStamp> Stamp(std::string_view name) const;

    // Removes from the data folder what writers that were killed have left there.
    void ClearAbandoned() const;

  private:
    // Which names a folder did not have in any spelling, as long as it does not change.
    struct MissingNames {
        timespec folder_changed{};
        std::set<std::filesystem::path> names;
    };
    std::filesystem::path ExistingSpelling(const std::filesystem::path& wanted) const;

    std::filesystem::path data_folder_;
    mutable std::mutex missing_in_use_;  // tables are computed by two threads
    mutable std::map<std::filesystem::path, MissingNames> missing_;
    bool delete_warning_given_ = false;
    mutable std::uint64_t own_writes_ = 0;
};

}  // namespace zandrell
