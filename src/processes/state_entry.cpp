#include "processes/state_entry.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "kernel/state_solver.h"

namespace zandrell {

StateEntry::StateEntry(const ProcessContext& context, const StateEntryNames& names,
                       TextField& temperature, TextField& humidity)
    : choice(names.choice),
      first_word(names.first_word),
      second_word(names.second_word),
      first(names.first),
      second(names.second),
      context_(context),
      temperature_(temperature),
      humidity_(humidity) {
    choice.index = 0;
    ShowControls();
}

void StateEntry::ListControls(Form& form) {
    form.Add({&choice, &first_word, &first, &second_word, &second});
}

FigurePair StateEntry::Pair() const {
    const auto pairs = OfferedPairs();
    return pairs[static_cast<std::size_t>(std::max(choice.index, 0))];
}

void StateEntry::SetWords() {
    const Captions& words = context_.captions;
    std::vector<std::string> texts;
    texts.reserve(OfferedPairs().size());
    for (const FigurePair& pair : OfferedPairs()) {
        std::string text = words[WordOf(pair.first)];
        texts.push_back(text.append(", ").append(words[WordOf(pair.second)]));
    }
    const int chosen = choice.index;
    choice.Fill(std::move(texts));
    choice.Choose(chosen);
    choice.tool_tip = words[Caption::GiveAs] + "…";
    ShowControls();
}

void StateEntry::ShowWord(Label& word, AirFigure figure) const {
    word.text.clear();
    if (!GivesPair()) return;
    word.text = context_.captions[WordOf(figure)];
    word.text.append(" /[").append(UnitOf(figure)).append("]:");
}

void StateEntry::ShowControls() {
    choice.visible = choice.enabled =
        !worked_out && context_.settings.convention == Convention::Exact;
    for (Control* control :
         std::initializer_list<Control*>{&first_word, &first, &second_word, &second}) {
        control->visible = control->enabled = choice.visible && GivesPair();
    }
    temperature_.enabled = humidity_.enabled = !first.visible;  // figures that follow
    ShowWord(first_word, Pair().first);
    ShowWord(second_word, Pair().second);
}

PairOutcome StateEntry::OutcomeOf(const PairTexts& figures) const {
    return StateFromPair(Pair(), figures, context_.settings, context_.solver.ChartDruckBar);
}

PairTexts StateEntry::FiguresOfState() const {
    return FiguresOf(Pair(), State(), context_.settings, context_.solver.ChartDruckBar);
}

bool StateEntry::ShowsState() const {
    return !first.text.empty() && !second.text.empty() && Figures() == FiguresOfState();
}

bool StateEntry::TakePair() {
    taken_.Take();
    outcome_ = OutcomeOf(Figures());
    if (ShowsState()) outcome_ = {State()};
    if (!outcome_.state) return false;
    temperature_.text = outcome_.state->temperature;
    humidity_.text = outcome_.state->humidity;
    return true;
}

void StateEntry::FollowState() {
    ShowControls();
    Followed now{State(), choice.index, GivesPair() ? FiguresOfState() : PairTexts()};
    if (now == followed_ && !(GivesPair() && ShowsState())) return;  // typed, or refused
    outcome_ = {};
    if (!GivesPair() || OutcomeOf(Figures()).state != now.state) {
        first.text = now.figures.first;
        second.text = now.figures.second;
    }
    followed_ = std::move(now);
    taken_.Take();
}

bool StateEntry::IsTyped() const {
    return first.visible && !(taken_.Holds(first) && taken_.Holds(second));
}

void StateEntry::NoteFields(const FieldNotes& notes) {
    const bool of_another_state = followed_.state != State();
    notes.MarkFigures({&first, &second}, of_another_state);
    for (const auto& [field, refusal] :
         {std::pair(&first, &outcome_.first), {&second, &outcome_.second}}) {
        if (!taken_.Holds(*field)) {
            notes.MarkPending(*field);
        } else if (*refusal) {
            notes.MarkRefused(*field, **refusal);
        } else if (!of_another_state) {
            notes.MarkUsed(*field);
        }
    }
}

}  // namespace zandrell
