#include "shell/state_table_form.h"

#include <algorithm>

#include "base/text_helpers.h"

namespace zandrell {
namespace {

constexpr int kNameTwips = 2600, kFigureTwips = 1300, kRowTwips = 300, kHeadTwips = 600;

// Where a tool that reads tables takes them from a clipboard.
std::string Tabbed(const Grid& grid) {
    std::string text;
    for (int row = 0; row < grid.RowCount(); ++row) {
        for (int column = 0; column < grid.ColumnCount(); ++column) {
            if (column > 0) text += '\t';
            text += grid.Text(row, column);
        }
        text += '\n';
    }
    return text;
}

}  // namespace

StateTableForm::StateTableForm(const DataFiles& files, const Captions& captions,
                               UserInterface& user)
    : ModalForm("StateTable"), files_(files), captions_(captions), user_(user) {
    form.Add({&States, &Message, &Copy, &Save, &Close});
    cancel_control = default_control = Close.name;
    acts.Add(Close.name, ActKind::Click, [this] { closed = true; });
    acts.Add(Save.name, ActKind::Click, [this] { SaveCsv(); });
    acts.Add(Copy.name, ActKind::Click, [this] {
        if (copy_text) copy_text(Tabbed(States));
        Message.text = captions_[Caption::Copied];
    });
    acts.Add(States.name, ActKind::Sort, [this] { Sort(); });
}

void StateTableForm::ShowStates(const StateList& list, const std::string& process) {
    if (closed) {
        order_ = {};
        shown_ = {};
        States.SetRows(0, 0);
        States.column = 0;
        Message.text.clear();
    }
    Copy.text = captions_[Caption::CopyTable];
    Save.text = captions_[Caption::ListAsCsv];
    Close.text = "O.K.";
    States.head_tip = captions_[Caption::SortTip];
    States.name_column = 0;
    closed = false;
    Follow(list, process);
    show_beside ? show_beside() : user_.ShowModal(*this);
}

void StateTableForm::Follow(const StateList& list, const std::string& process) {
    const bool computed = !list.rows.empty();
    const bool waits = !computed && !process.empty() && !shown_.rows.empty();
    // What is typed and not yet confirmed has no figures: those of before stay and say so.
    if (waits) Message.text = captions_[Caption::OfEarlierInputs];
    Copy.enabled = Save.enabled = computed;
    if (waits) return;
    title = captions_[Caption::StateTable];
    if (!process.empty()) title.append(" - ").append(process);
    if (computed) title.append(" - ").append(list.pressure);
    if (computed && list == shown_ && Message.text != captions_[Caption::OfEarlierInputs]) return;
    Message.text = computed ? "" : captions_[Caption::NoProcess];
    if (list.heads != shown_.heads) order_ = {};
    shown_ = list;
    const int top = States.TopRow(), chosen = States.MadePlace(States.row);
    Fill(list);
    SortRows(States, order_);
    for (int row = 1; row < States.RowCount(); ++row) {
        if (States.MadePlace(row) == std::max(chosen, 1)) States.row = row;
    }
    States.SetTopRow(top);
}

void StateTableForm::Fill(const StateList& list) {
    States.SetRows(0, 0);
    States.SetColumns(static_cast<int>(list.heads.size()));
    States.SetRows(static_cast<int>(list.rows.size()) + 1, kRowTwips);
    States.SetHeight(0, kHeadTwips);
    const auto write = [this](int row, const std::vector<std::string>& cells) {
        int column = 0;
        for (const std::string& cell : cells) States.SetText(row, column++, cell);
    };
    write(0, list.heads);
    int row = 1;
    for (const auto& cells : list.rows) write(row++, cells);
    for (int column = 0; column < States.ColumnCount(); ++column) {
        States.SetWidth(column, column == 0 ? kNameTwips : kFigureTwips);
    }
}

void StateTableForm::Sort() {
    order_.Ask(States.asked_column);
    SortRows(States, order_);
}

void StateTableForm::SaveCsv() {
    const std::string file = ask_file ? ask_file() : "";
    if (!file.empty()) Message.text = SaveAsCsv(States, file, files_, captions_);
}

}  // namespace zandrell
