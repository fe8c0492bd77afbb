#include "shell/form_script.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <istream>
#include <iterator>
#include <optional>
#include <ostream>

#include "base/text_encoding.h"
#include "base/text_helpers.h"
#include "forms/grid.h"
#include "shell/main_stage.h"

namespace zandrell {
namespace {

// Acts that only grids have.
bool IsGridAct(const std::string& act) {
    return act == "wheel" || act == "move" || act == "leave" || act == "sort";
}

std::optional<ActKind> GridKey(const std::string& act, const std::string& word) {
    if (act == "key" && word == "i") return ActKind::Tell;
    if (word == (act == "key" ? "Up" : "up")) return ActKind::RowsUp;
    if (word == (act == "key" ? "Down" : "down")) return ActKind::RowsDown;
    return std::nullopt;
}

bool RunGridAct(WindowForm& window, const std::string& act, const std::string& grid,
                const std::vector<std::string>& values, std::string& error) {
    int first = 0, second = 0;
    const bool one = !values.empty() && ReadWhole(values[0], first);
    const bool two = one && values.size() > 1 && ReadWhole(values[1], second);
    bool done = false;
    if (act == "pick") {
        if (!two) return Refused(error, "pick needs a row and a column");
        done = window.UserPickCell(grid, first, second);
    }
    if (act == "move" || act == "sort") {
        if (!one) return Refused(error, act + " needs a whole number");
        done = act == "move" ? window.UserHover(grid, first) : window.UserSort(grid, first);
    }
    if (act == "leave") done = window.UserHover(grid, 0);
    if (act == "return") done = window.UserReturn(grid);
    if (act == "key" || act == "wheel") {
        const std::string word = values.empty() ? "" : values[0];
        if (act == "key" && (word == "Return" || word == "Enter")) return window.UserReturn(grid);
        const auto key = GridKey(act, word);
        if (!key) return Refused(error, act + " " + Excerpt(word) + " does nothing in " + grid);
        done = window.UserGridAct(grid, *key);
    }
    return done ? true : Refused(error, act + " does not fit " + grid);
}

// A text for a field; what is larger, or no plain file, is none.
bool ReadWholeFile(const std::string& path, std::string& content) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error)) return false;
    if (std::filesystem::file_size(path, error) > DataFiles::kLargestText || error) return false;
    std::ifstream file(path, std::ios::binary);
    if (!file) return false;
    content.assign(std::istreambuf_iterator<char>(file), {});
    return !file.bad();
}

// The reaction of a bar to a key; empty for a key that moves nothing.
std::optional<int> BarPositionAfter(const ScrollBar& bar, const std::string& key) {
    const int least = std::min(bar.LowEnd(), bar.HighEnd());
    const int most = std::max(bar.LowEnd(), bar.HighEnd());
    const auto moved = [&](int by) { return std::clamp(bar.Position() + by, least, most); };
    if (key == "Right" || key == "Up") return moved(1);
    if (key == "Left" || key == "Down") return moved(-1);
    if (key == "PageUp") return moved(10);
    if (key == "PageDown") return moved(-10);
    if (key == "Home") return least;
    if (key == "End") return most;
    return std::nullopt;
}

std::string_view IconWord(MessageIcon icon) {
    switch (icon) {
        case MessageIcon::Stop:
            return "stop";
        case MessageIcon::Question:
            return "question";
        case MessageIcon::Information:
            break;
    }
    return "information";
}

}  // namespace

bool ReadScriptLine(std::istream& script, std::string& line) {
    line.clear();
    std::streambuf& bytes = *script.rdbuf();
    constexpr auto kEnd = std::char_traits<char>::eof();
    for (;;) {
        const int byte = bytes.sbumpc();
        if (byte == '\n') return true;
        if (byte == kEnd) return !line.empty();
        line += static_cast<char>(byte);
        if (line.size() > kLongestScriptLine) return true;
    }
}

std::vector<std::string> ActsOf(std::string line) {
    if (line.ends_with('\r')) line.pop_back();
    const ScriptLine parts(line);
    if (parts.words.empty() || parts.words[0] != "print") return {std::move(line)};
    return {"printer " + parts.BehindAct(), "click druckbutt", "click DruckEInstell.Okbutt"};
}

FormScript::FormScript(MainForm& form, std::ostream& dumps)
    : own_stage_(std::make_unique<MainStage>(form)), stage_(*own_stage_), dumps_(dumps) {}

FormScript::FormScript(ScriptStage& stage, std::ostream& dumps) : stage_(stage), dumps_(dumps) {}

void FormScript::WindowOpened(ModalForm& window) {
    if (window_ != nullptr) below_.push_back(window_);
    window_ = &window;
    opened_.push_back({window.title, "", MessageIcon::Information});
}

void FormScript::WindowClosed() {
    window_ = nullptr;
    if (below_.empty()) return;
    window_ = below_.back();
    below_.pop_back();
}

std::string FormScript::TakeAnswer() {
    if (answers_.empty()) return {};
    std::string answer = answers_.front();
    answers_.erase(answers_.begin());
    return answer;
}

bool FormScript::RunLine(std::string_view written, std::string& error) {
    if (written.ends_with('\r')) written.remove_suffix(1);
    // Each line by itself: a bad byte in one spoils no other.
    const std::string line = DecodeText(written);
    const ScriptLine parts(line);
    const Words& words = parts.words;
    if (words.empty() || words[0].front() == '#') return true;
    const std::string& act = words[0];
    if (act == "dump") return Dump(words, error);
    if (act == "answer") {
        const auto value = line.find_first_not_of(" \t", line.find("answer") + 6);
        answers_.emplace_back(value == std::string::npos ? "" : line.substr(value));
        return true;
    }
    if (act == "close" && window_ != nullptr) return window_->UserClick(window_->cancel_control);
    if (act == "clock") return RunClock(words, error);
    if (act == "printer") return RunPrinter(parts.BehindAct(), error);
    if (const auto done = stage_.RunAct(parts, window_, error)) return *done;
    if (words.size() < 2) return Refused(error, "unknown act or missing name: " + Excerpt(act));
    return RunControlAct(act, words[1], parts.Value(), error);
}

bool FormScript::RunClock(const Words& words, std::string& error) {
    const auto day = words.size() == 2 ? ReadDay(words[1]) : std::nullopt;
    if (!day) return Refused(error, "clock needs a day, YYYY-MM-DD");
    stage_.Shared().clock_day = day;
    return true;
}

bool FormScript::RunPrinter(const std::string& file, std::string& error) {
    if (file.empty()) return Refused(error, "the printer needs a PDF file");
    if (stage_.PrintToFile(file)) return true;
    return Refused(error, "there is no printer here");
}

bool FormScript::Find(const std::string& name, Target& target, std::string& error) {
    const auto dot = name.find('.');
    if (dot == std::string::npos) {
        target = {&stage_.Window(), name};
        if (target.window->form.Find(name) == nullptr)
            return Refused(error, "unknown name: " + Excerpt(name));
        if (window_ != nullptr) return Refused(error, window_->form.Name() + " is open");
        return true;
    }
    const std::string window = name.substr(0, dot);
    target = {window_, name.substr(dot + 1)};
    if (window_ == nullptr || window_->form.Name() != window) {
        return Refused(error, "no open window " + Excerpt(window));
    }
    if (window_->form.Find(target.control) == nullptr)
        return Refused(error, "unknown name: " + Excerpt(name));
    return true;
}

bool FormScript::RunControlAct(const std::string& act, const std::string& name,
                               const std::string& value, std::string& error) {
    Target target;
    const bool known = act == "set" || act == "return" || act == "click" || act == "choose" ||
                       act == "check" || act == "select" || act == "pick" || act == "doubleclick" ||
                       act == "fill" || act == "scroll" || act == "key" || IsGridAct(act);
    if (!known) return Refused(error, "unknown act: " + Excerpt(act));
    if (!Find(name, target, error)) return false;
    if (window_ == nullptr && !stage_.IsOpen()) return true;
    WindowForm& window = *target.window;
    if (AsGrid(window.form.Find(target.control)) != nullptr) {
        return RunGridAct(window, act, target.control, ScriptLine(value).words, error);
    }
    bool done = false;
    if (act == "set") done = window.UserSetText(target.control, value);
    if (act == "fill") {
        std::string content;
        if (!ReadWholeFile(value, content))
            return Refused(error, Excerpt(value) + ": can not be read");
        done = window.UserSetText(target.control, content);
    }
    if (act == "pick") done = window.UserPick(target.control, value);
    if (act == "doubleclick") done = window.UserDoubleClick(target.control);
    if (act == "select") {
        int index = 0;
        if (!ReadWhole(value, index)) return Refused(error, "select needs a whole position");
        done = window.UserSelect(target.control, index);
    }
    if (act == "return") done = window.UserReturn(target.control);
    if (act == "click") done = window.UserClick(target.control);
    if (act == "choose") done = window.UserChoose(target.control);
    if (act == "check") {
        if (value != "on" && value != "off") return Refused(error, "check needs on or off");
        done = window.UserCheck(target.control, value == "on");
    }
    if (act == "scroll") {
        int position = 0;
        if (!ReadWhole(value, position)) return Refused(error, "scroll needs a whole position");
        done = window.UserScroll(target.control, position);
    }
    if (act == "key") return RunKey(target, value, error);
    return done ? true : Refused(error, act + " does not fit " + name);
}

bool FormScript::RunKey(const Target& target, const std::string& key, std::string& error) {
    WindowForm& window = *target.window;
    const Control& control = *window.form.Find(target.control);
    const bool confirms = key == "Return" || key == "Enter";
    if (key == "F1") {
        stage_.OpenHelp(window_ != nullptr ? window_->form.Name() : "");
        return true;
    }
    if (key == "Escape" && window_ != nullptr) {
        return window_->UserClick(window_->cancel_control);
    }
    if (confirms && window.UserReturn(target.control)) return true;
    if ((confirms || key == "Space") && window.UserClick(target.control)) return true;
    if (key == "Space" && window.UserChoose(target.control)) return true;
    if (control.kind == ControlKind::ScrollBar) {
        const auto position = BarPositionAfter(static_cast<const ScrollBar&>(control), key);
        if (position) return window.UserScroll(target.control, *position);
    }
    if (key == "Tab" || key == "Escape") return true;
    return Refused(error, "key " + Excerpt(key) + " does nothing in " + target.control);
}

bool FormScript::Dump(const Words& words, std::string& error) {
    Json json = words.size() == 1 ? stage_.DumpAll() : Json::object();
    for (std::size_t i = 1; i < words.size(); ++i) {
        Json one = stage_.Dump(words[i]);
        if (one.is_null()) return Refused(error, "unknown name: " + Excerpt(words[i]));
        json[words[i]] = std::move(one);
    }
    Json dialogs = Json::array();
    for (const auto& message : opened_) {
        dialogs.push_back(
            {{"title", message.title}, {"text", message.text}, {"icon", IconWord(message.icon)}});
    }
    opened_.clear();
    json["dialogs"] = std::move(dialogs);
    dumps_ << json.dump(-1, ' ', false, Json::error_handler_t::replace) << '\n';
    return true;
}

bool ScriptedUser::Run(MainForm& form, std::string& error, WindowSize size) {
    MainStage stage(form);
    return Run(stage, error, [&] {
        form.Load();
        form.Resize(size.width, size.height);
        form.Activate();
    });
}

bool ScriptedUser::Run(ScriptStage& stage, std::string& error, const std::function<void()>& start) {
    FormScript acts(stage, dumps_);
    acts_ = &acts;
    start();
    while (RunNextLine()) {
    }
    acts_ = nullptr;
    error = error_;
    return error_.empty();
}

bool ScriptedUser::ReadAct(std::string& act) {
    if (acts_ahead_.empty()) {
        std::string line;
        if (!ReadScriptLine(script_, line)) return false;
        ++line_number_;
        if (line.size() > kLongestScriptLine) {
            error_ = "line " + std::to_string(line_number_) + ": too long for an act";
            return false;
        }
        for (std::string& one : ActsOf(line)) acts_ahead_.push_back(std::move(one));
    }
    act = std::move(acts_ahead_.front());
    acts_ahead_.pop_front();
    return true;
}

bool ScriptedUser::RunNextLine() {
    std::string line;
    if (!error_.empty() || !ReadAct(line)) return false;
    // A line that opens a window runs others before it comes back.
    const int number = line_number_;
    std::string reason;
    if (acts_->RunLine(line, reason) || !error_.empty()) return error_.empty();
    error_ = "line " + std::to_string(number) + ": " + reason;
    return false;
}

void ScriptedUser::ShowMessage(const Message& message) {
    if (acts_ == nullptr) return;
    acts_->NoteMessage(message);
    acts_->TakeAnswer();
}

void ScriptedUser::ShowModal(ModalForm& window) {
    acts_->WindowOpened(window);
    const std::string answer = acts_->TakeAnswer();
    if (answer == "ok" || answer == "yes") window.UserClick(window.default_control);
    if (answer == "cancel" || answer == "no") window.UserClick(window.cancel_control);
    while (!window.closed && RunNextLine()) {
    }
    if (!window.closed) window.UserClick(window.cancel_control);
    acts_->WindowClosed();
}

// Without an answer a question is refused: what a script does not say is not done.
bool ScriptedUser::Confirm(const Message& question) {
    if (acts_ == nullptr) return false;
    acts_->NoteMessage(question);
    const std::string answer = acts_->TakeAnswer();
    return answer == "yes" || answer == "ok";
}

bool ScriptedUser::ChoosePrinter(const std::string& title) {
    acts_->NoteMessage({title, "", MessageIcon::Information});
    const std::string answer = acts_->TakeAnswer();
    return answer != "cancel" && answer != "no";
}

}  // namespace zandrell
