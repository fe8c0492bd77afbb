#pragma once

#include <set>
#include <string>
#include <string_view>

#include "projects/hand_over.h"
#include "projects/project_context.h"
#include "projects/seen_files.h"
#include "projects/working_state.h"

namespace zandrell {

// Who asks for a save: a user may replace what could not be read, the end of the program may not.
enum class SaveOccasion { OnRequest, AtEnd };

// Brings the inputs of the main window in from files and out to them, and takes what sibling
// modules hand over. No load or save loses what was typed: before a load the present inputs are
// kept as QV_ACT.bak, and a file that another program has changed is replaced only by a user who
// says so. It runs no calculation.
class WorkingStateKeeper {
  public:
    // `cooler_duty` is what a sibling module learns of the cooler. All of it outlives the keeper.
    WorkingStateKeeper(const ProjectContext& context, const WorkingStateFields& fields,
                       const std::string& cooler_duty)
        : context_(context), fields_(fields), cooler_duty_(cooler_duty), seen_(context) {}

    // At each activation: takes a hand-over that waits, and at the first one the working state of
    // the kind in force. The file is reset, so that a hand-over is used once. Returns whether
    // inputs were replaced.
    bool Activate();
    const TemperatureLines& Lines() const { return lines_; }

    // Loads a working-state file that the user asked for; a missing one empties the fields. False
    // when it can not be read or the present inputs can not be kept, which the user is told.
    bool ArbeitsfelderLaden(std::string_view name);

    // Saves, and reports to the sibling module. A file that could not be read is kept as QV_ACT.bak
    // when the user asks for the save, and stays as it is at the end of the program. A user who
    // declines to replace what another program has written finds the inputs in QV_ACT.bak.
    WriteResult ArbeitsfelderSpeichern(std::string_view name, SaveOccasion occasion);

    // Saves to the file of the kind in force. False when the program should stay open, since the
    // inputs could not be saved; a second try lets it go.
    bool SaveAtEnd();
    // Whether the end of the program would save nothing that its file does not hold.
    bool IsSaved() const;

    // Keeps the present inputs before `incoming`, the text of a working state, replaces them,
    // unless the two are the same or the fields are empty. False when they can not be kept, which
    // the user is told.
    bool KeepPresent(std::string_view incoming);
    // The inputs of before the last load come back, and the present ones take their place.
    bool RestorePrevious();
    bool HasPrevious() const;
    // Whether there is anything in the fields.
    bool HoldsInputs() const;

    std::string PresentText() const { return WorkingStateText(fields_); }
    SeenFiles& Seen() { return seen_; }

  private:
    void Take(const HandOver& hand_over);
    void LoadForKind(bool first);
    std::string FileAtEnd() const;
    bool WriteReport(std::string_view name);
    bool KeepUnread(std::string_view name);
    bool Save(std::string_view name, const std::string& text);
    bool ComplainUnread(std::string_view name, const FileText& file);

    ProjectContext context_;
    WorkingStateFields fields_;
    const std::string& cooler_duty_;
    SeenFiles seen_;
    TemperatureLines lines_;
    bool started_ = false;
    bool end_was_held_up_ = false;
    std::string hand_over_taken_;                // as it stood when it was taken
    std::set<std::string, std::less<>> unread_;  // files that are there and could not be read
};

}  // namespace zandrell
