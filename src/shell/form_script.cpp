#include "shell/form_script.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <istream>
#include <iterator>
#include <optional>
#include <ostream>
#include <sstream>

#include "base/number_text.h"
#include "base/text_encoding.h"
#include "base/text_helpers.h"
#include "canvas/canvas.h"
#include "shell/form_dump.h"
#include "shell/help_in_hand.h"

namespace zandrell {
namespace {

std::vector<std::string> WordsOf(std::string_view line) {
    std::istringstream stream{std::string(line)};
    std::vector<std::string> words;
    for (std::string word; stream >> word;) words.push_back(word);
    return words;
}

bool ReadNumber(const std::string& word, double& value) {
    const bool numeric =
        !word.empty() && word.find_first_not_of("0123456789.+-eE") == std::string::npos;
    if (numeric) value = ToDouble(word);
    return numeric;
}

bool ReadWhole(const std::string& word, int& value) {
    double number = 0;
    if (!ReadNumber(word, number)) return false;
    const auto rounded = RoundToInteger(number);
    if (!rounded) return false;
    value = *rounded;
    return true;
}

// What stands behind the first two words: the value runs to the end of the line.
std::string ValueOf(std::string_view line) {
    const auto act = line.find_first_not_of(" \t");
    auto place = line.find_first_of(" \t", act);
    place = line.find_first_not_of(" \t", place);
    place = line.find_first_of(" \t", place);
    return place == std::string_view::npos ? std::string() : std::string(line.substr(place + 1));
}

// What stands behind the first word.
std::string BehindAct(std::string_view line) {
    const auto act = line.find_first_not_of(" \t");
    const auto end = line.find_first_of(" \t", act);
    const auto value = line.find_first_not_of(" \t", end);
    return value == std::string_view::npos ? std::string() : std::string(line.substr(value));
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

bool Fail(std::string& error, const std::string& reason) {
    error = reason;
    return false;
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
    if (WordsOf(line).empty() || WordsOf(line)[0] != "print") return {std::move(line)};
    return {"printer " + BehindAct(line), "click druckbutt", "click DruckEInstell.Okbutt"};
}

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
    const Words words = WordsOf(line);
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
    if (act == "printer") return RunPrinter(line, error);
    if (act == "open") return OpenWindow(words, ValueOf(line), error);
    if (act == "window" || act == "activate" || act == "close" || act == "pointer") {
        if (window_ != nullptr) return Fail(error, window_->form.Name() + " is open");
        return act == "pointer" ? RunPointer(words, error) : RunWindowAct(words, error);
    }
    if (words.size() < 2) return Fail(error, "unknown act or missing name: " + Excerpt(act));
    return RunControlAct(act, words[1], ValueOf(line), error);
}

bool FormScript::RunWindowAct(const Words& words, std::string& error) {
    if (words[0] == "activate") {
        form_.Activate();
    } else if (words[0] == "close") {
        form_.ende_qv();
    } else {
        int width = 0, height = 0;
        const bool sized = words.size() == 3 && ReadWhole(words[1], width) &&
                           ReadWhole(words[2], height) && width > 0 && height > 0 &&
                           width <= kLargestPictureSide && height <= kLargestPictureSide;
        if (!sized) return Fail(error, "window needs a width and a height in pixels");
        form_.Resize(width, height);
    }
    return true;
}

bool FormScript::RunClock(const Words& words, std::string& error) {
    const auto day = words.size() == 2 ? ReadDay(words[1]) : std::nullopt;
    if (!day) return Fail(error, "clock needs a day, YYYY-MM-DD");
    form_.shared.clock_day = day;
    return true;
}

bool FormScript::RunPrinter(std::string_view line, std::string& error) {
    const std::string file = BehindAct(line);
    if (file.empty()) return Fail(error, "the printer needs a PDF file");
    if (form_.printing.PrintToFile(file)) return true;
    return Fail(error, "there is no printer here");
}

// As another module of the suite would open a window.
bool FormScript::OpenWindow(const Words& words, const std::string& value, std::string& error) {
    if (form_.ended) return true;
    if (window_ != nullptr) return Fail(error, window_->form.Name() + " is open");
    const std::string window = words.size() > 1 ? words[1] : "";
    if (window == "Hilfebox") {
        form_.shared.DateText = value;
        form_.help.ShowHelp();
        return true;
    }
    int mode = 0;
    if (window != "ProjLaden") return Fail(error, "no such window");
    if (words.size() != 3 || !ReadWhole(words[2], mode)) {
        return Fail(error, "open ProjLaden needs its DialogMode");
    }
    form_.Projects().OpenDialog(mode);
    return true;
}

bool FormScript::RunPointer(const Words& words, std::string& error) {
    CanvasPoint place;
    const bool placed =
        words.size() >= 4 && ReadNumber(words[2], place.x) && ReadNumber(words[3], place.y);
    if (!placed) return Fail(error, "pointer needs move, press or release and a place");
    if (words.size() > 4 && words[4] != "left" && words[4] != "right") {
        return Fail(error, "unknown pointer button: " + Excerpt(words[4]));
    }
    const bool right = words.size() > 4 && words[4] == "right";
    const PointerButton button = right ? PointerButton::Right : PointerButton::Left;
    if (words[1] == "move") {
        form_.PointerMove(place);
    } else if (words[1] == "press") {
        form_.PointerPress(button, place);
    } else if (words[1] == "release") {
        form_.PointerRelease(button);
    } else {
        return Fail(error, "unknown pointer act: " + Excerpt(words[1]));
    }
    return true;
}

bool FormScript::Find(const std::string& name, Target& target, std::string& error) {
    const auto dot = name.find('.');
    if (dot == std::string::npos) {
        target = {&form_, name};
        if (form_.form.Find(name) == nullptr) return Fail(error, "unknown name: " + Excerpt(name));
        if (window_ != nullptr) return Fail(error, window_->form.Name() + " is open");
        return true;
    }
    const std::string window = name.substr(0, dot);
    target = {window_, name.substr(dot + 1)};
    if (window_ == nullptr || window_->form.Name() != window) {
        return Fail(error, "no open window " + Excerpt(window));
    }
    if (window_->form.Find(target.control) == nullptr) {
        return Fail(error, "unknown name: " + Excerpt(name));
    }
    return true;
}

bool FormScript::RunControlAct(const std::string& act, const std::string& name,
                               const std::string& value, std::string& error) {
    Target target;
    const bool known = act == "set" || act == "return" || act == "click" || act == "choose" ||
                       act == "check" || act == "select" || act == "pick" || act == "doubleclick" ||
                       act == "fill" || act == "scroll" || act == "key";
    if (!known) return Fail(error, "unknown act: " + Excerpt(act));
    if (!Find(name, target, error)) return false;
    WindowForm& window = *target.window;
    bool done = false;
    if (act == "set") done = window.UserSetText(target.control, value);
    if (act == "fill") {
        std::string content;
        if (!ReadWholeFile(value, content))
            return Fail(error, Excerpt(value) + ": can not be read");
        done = window.UserSetText(target.control, content);
    }
    if (act == "pick") done = window.UserPick(target.control, value);
    if (act == "doubleclick") done = window.UserDoubleClick(target.control);
    if (act == "select") {
        int index = 0;
        if (!ReadWhole(value, index)) return Fail(error, "select needs a whole position");
        done = window.UserSelect(target.control, index);
    }
    if (act == "return") done = window.UserReturn(target.control);
    if (act == "click") done = window.UserClick(target.control);
    if (act == "choose") done = window.UserChoose(target.control);
    if (act == "check") {
        if (value != "on" && value != "off") return Fail(error, "check needs on or off");
        done = window.UserCheck(target.control, value == "on");
    }
    if (act == "scroll") {
        int position = 0;
        if (!ReadWhole(value, position)) return Fail(error, "scroll needs a whole position");
        done = window.UserScroll(target.control, position);
    }
    if (act == "key") return RunKey(target, value, error);
    return done ? true : Fail(error, act + " does not fit " + name);
}

bool FormScript::RunKey(const Target& target, const std::string& key, std::string& error) {
    WindowForm& window = *target.window;
    const Control& control = *window.form.Find(target.control);
    const bool confirms = key == "Return" || key == "Enter";
    if (key == "F1") {
        form_.OpenHelp(TopicInHand(form_, window_ != nullptr ? window_->form.Name() : ""));
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
    return Fail(error, "key " + Excerpt(key) + " does nothing in " + target.control);
}

bool FormScript::Dump(const Words& words, std::string& error) {
    Json json = words.size() == 1 ? DumpForm(form_) : Json::object();
    for (std::size_t i = 1; i < words.size(); ++i) {
        Json one = DumpOne(form_, words[i]);
        if (one.is_null()) return Fail(error, "unknown name: " + Excerpt(words[i]));
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
    FormScript acts(form, dumps_);
    acts_ = &acts;
    form.Load();
    form.Resize(size.width, size.height);
    form.Activate();
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
