#pragma once

#include <string_view>

#include "forms/choice_list.h"
#include "forms/control.h"
#include "forms/form.h"
#include "processes/field_notes.h"
#include "processes/given_pair.h"
#include "processes/process_context.h"

namespace zandrell {

struct StateEntryNames {
    std::string_view choice, first_word, first, second_word, second;
};

// How a state of the point panel is given under Exact: by temperature and relative humidity, in the
// fields that the panel has for them, or by another pair of figures, typed into two more fields,
// from which those two follow. All else knows the state by its own fields alone.
class StateEntry {
  public:
    // The two fields of the state outlive the entry.
    StateEntry(const ProcessContext& context, const StateEntryNames& names, TextField& temperature,
               TextField& humidity);
    StateEntry(const StateEntry&) = delete;  // its records know its fields
    StateEntry& operator=(const StateEntry&) = delete;

    ComboBox choice;  // of OfferedPairs
    Label first_word, second_word;
    TextField first, second;
    bool worked_out = false;  // the state is what a tool makes of the other: nothing is typed

    void ListControls(Form& form);
    // The entries of the choice and the words of the figures.
    void SetWords();

    // The figures as typed become temperature and humidity. False, with these as they are, where
    // that is refused. Texts that show the state anyway leave it as it is, to its last decimal.
    bool TakePair();

    // Shows what the convention and the chosen pair need. Where the state is another than that
    // of the figures they become those of the state, unless they are what gives exactly this one.
    void FollowState();

    void NoteFields(const FieldNotes& notes);
    // Whether a figure is typed and not yet confirmed.
    bool IsTyped() const;

  private:
    bool GivesPair() const { return choice.index > 0; }
    FigurePair Pair() const;
    StateTexts State() const { return {temperature_.text, humidity_.text}; }
    PairTexts Figures() const { return {first.text, second.text}; }
    PairOutcome OutcomeOf(const PairTexts& figures) const;
    PairTexts FiguresOfState() const;
    bool ShowsState() const;
    void ShowControls();
    void ShowWord(Label& word, AirFigure figure) const;

    // Which state the fields were last brought in line with, and what it has of the pair: that
    // hangs on the pressure and on the range of the chart too.
    struct Followed {
        StateTexts state;
        int pair = -1;
        PairTexts figures;
        bool operator==(const Followed&) const = default;
    };

    ProcessContext context_;
    TextField &temperature_, &humidity_;
    TakenTexts taken_{&first, &second};
    PairOutcome outcome_;  // of what was taken
    Followed followed_;
};

}  // namespace zandrell
