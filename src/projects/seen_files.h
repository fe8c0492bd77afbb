#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "projects/project_context.h"

namespace zandrell {

enum class WriteResult {
    Done,
    Declined,  // the user keeps what the file holds
    Failed     // and the user has been told
};

// What a write replaces: a file that is this program's to write, or one that the user has only
// named.
enum class Target { Own, Other };

// Reads and writes the files that hold a user's work, and remembers what each held when this
// program last saw it: what another program has put there meanwhile is not thrown away unasked.
class SeenFiles {
  public:
    explicit SeenFiles(const ProjectContext& context) : context_(context) {}

    // What can not be read counts as seen empty: whatever it turns out to hold is not replaced
    // unasked.
    FileText Read(std::string_view name);

    // Replaces a file that holds something else than `text`. Asks first where another program has
    // changed the file since it was seen, and before any other file than an own one is replaced.
    WriteResult Write(std::string_view name, const std::string& text, Target target = Target::Own);

    // Asks where another program has changed an own file since it was seen; it is to be removed.
    bool MayRemove(std::string_view name) const;

  private:
    std::string KeyOf(std::string_view name) const;
    bool MayReplace(const std::string& key, const FileText& present, Target target) const;

    ProjectContext context_;
    std::map<std::string, std::string> texts_;  // by path
};

}  // namespace zandrell
