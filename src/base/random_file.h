#pragma once

#include <string>
#include <string_view>

#include "base/data_files.h"

namespace zandrell {

// A file of fixed-length records that is read in pieces, so that its size does not matter. Open as
// long as the object lives.
class RandomFile {
  public:
    // Not open: every read is empty.
    RandomFile() = default;
    // The file that `name` stands for in the data folder, for reading only; a missing file is not
    // created. Requires: a record length above 0.
    RandomFile(const DataFiles& files, std::string_view name, std::size_t record_length);
    ~RandomFile();
    RandomFile(RandomFile&& other) noexcept;
    RandomFile& operator=(RandomFile&& other) noexcept;

    FileStatus Status() const { return status_; }

    // Replaces `bytes` by `count` records from number `first` on, counted from 1; fewer where the
    // file ends, and the last one shorter when it ends inside. Nothing for a number below 1, behind
    // the end, or when the file cannot be read.
    void Read(long first, std::size_t count, std::string& bytes) const;

  private:
    int handle_ = -1;
    FileStatus status_ = FileStatus::Missing;
    std::size_t record_length_ = 1;
};

}  // namespace zandrell
