// A user who does anything in any order: nothing crashes or hangs, no figure is not a number, and
// the pointer is always owned by somebody.
#include <gtest/gtest.h>

#include <random>
#include <set>

#include "script_session.h"

namespace zandrell {
namespace {

const std::vector<std::string>& HostileTexts() {
    static const std::vector<std::string> texts = {
        "",       "20",  "-10",    "55.5",  "abc",  "1e999",
        "-1e300", "--5", "12,5,7", "> 100", "< 0",  "0",
        "3.1",    "100", "1e12",   ".",     "&HFF", "-1",
        "95",     "inf", "nan",    "1E-9",  "9999", "800",
        "-50",    "120", "0,001",  "8.5",   "9",    std::string(5000, '7')};
    return texts;
}

class RandomUser {
  public:
    explicit RandomUser(unsigned seed) : random_(seed) {}

    std::string NextAct(const MainForm& form) {
        const auto& controls = form.form.Controls();
        const Control& control = *controls[Below(controls.size())];
        const std::string name(control.name);
        switch (control.kind) {
            case ControlKind::TextField:
                return Below(2) == 0 ? "return " + name : "set " + name + " " + AnyText();
            case ControlKind::Button:
            case ControlKind::MenuEntry:
                return Leaves(name) ? "activate" : "click " + name;
            case ControlKind::OptionButton:
                return "choose " + name;
            case ControlKind::ScrollBar:
                return "scroll " + name + " " + std::to_string(static_cast<int>(Below(1300)) - 300);
            default:
                return PointerAct();
        }
    }
    // A window stays open for a few acts of its own.
    std::string WindowActs(const ModalForm& window) {
        const std::string prefix = window.form.Name() + ".";
        std::string acts;
        for (const Control* control : window.form.Controls()) {
            const std::string name = prefix + std::string(control->name);
            const bool typed =
                control->kind == ControlKind::TextField || control->kind == ControlKind::ComboBox;
            if (typed && Below(3) == 0) {
                acts.append("set ").append(name).append(" ").append(AnyText());
                acts.append("\nreturn ").append(name).append("\n");
            }
            if (control->kind == ControlKind::OptionButton && Below(4) == 0) {
                acts.append("choose ").append(name).append("\n");
            }
        }
        if (Below(2) == 0) acts += "click " + prefix + std::string(window.default_control) + "\n";
        return acts + "click " + prefix + std::string(window.cancel_control) + "\n";
    }
    bool Agrees() { return Below(2) == 0; }

  private:
    std::size_t Below(std::size_t limit) { return random_() % limit; }
    const std::string& AnyText() { return HostileTexts()[Below(HostileTexts().size())]; }
    static bool Leaves(const std::string& name) {
        static const std::set<std::string> leaving = {"Ende", "Command3D7", "Command3D2"};
        return leaving.contains(name);
    }
    std::string PointerAct() {
        static const char* kinds[] = {"move", "move", "press", "release"};
        return std::string("pointer ") + kinds[Below(4)] + " " + std::to_string(Below(2100)) + " " +
               std::to_string(Below(620)) + (Below(40) == 0 ? " right" : "");
    }

    std::mt19937 random_;
};

// Answers windows by closing them after some acts of the random user.
class RandomAnswers : public UserInterface {
  public:
    explicit RandomAnswers(RandomUser& user) : user_(user) {}
    void ShowMessage(const Message& /*message*/) override {}
    void ShowModal(ModalForm& window) override {
        script_->WindowOpened(window);
        std::istringstream acts(user_.WindowActs(window));
        std::string error;
        for (std::string act; !window.closed && std::getline(acts, act);) {
            EXPECT_TRUE(script_->RunLine(act, error)) << act << ": " << error;
        }
        EXPECT_TRUE(window.closed);
        script_->WindowClosed();
    }
    void WaitMilliseconds(int /*milliseconds*/) override {}
    bool Confirm(const Message& /*question*/) override { return false; }
    void CopyChart() override {}
    bool ChoosePrinter(const std::string& /*title*/) override { return user_.Agrees(); }

    void SetScript(FormScript& script) { script_ = &script; }

  private:
    RandomUser& user_;
    FormScript* script_ = nullptr;
};

void ExpectSoundForm(MainForm& form, const std::string& after) {
    static const std::set<int> owners = {0, 1, 2, 4, 5, 33, 44, 77};
    EXPECT_TRUE(owners.contains(static_cast<int>(form.Pointer().PanelZustand()))) << after;
    for (const Control* control : form.form.Controls()) {
        const std::string& text = control->text;
        if (control->kind != ControlKind::Label) continue;
        EXPECT_EQ(text.find("nan"), std::string::npos) << control->name << ": " << text << after;
        EXPECT_EQ(text.find("inf"), std::string::npos) << control->name << ": " << text << after;
    }
    for (const Mark* mark : form.overlay.Marks()) {
        EXPECT_TRUE(std::isfinite(mark->left + mark->top)) << mark->name << after;
    }
    const Json dump = DumpForm(form);
    for (const char* figure : {"GesamtLeist", "LatentLeist", "HeizLeist", "BefeuchterLeist",
                               "MischX", "ZustandX1", "ZustandH", "MassstabX", "MassstabT"}) {
        EXPECT_TRUE(std::isfinite(dump[figure].get<double>())) << figure << after;
    }
}

TEST(RandomActs, NothingLeavesTheRails) {
    for (unsigned seed = 1; seed <= 6; ++seed) {
        ScriptSession session;
        RandomUser user(seed);
        RandomAnswers answers(user);
        DataFiles files(session.folder.Path());
        MainForm form(answers, files, NamedFolder(session.folder.Path()));
        std::ostringstream dumps;
        FormScript script(form, dumps);
        answers.SetScript(script);
        form.Load();
        form.shared.ProjectFolder = session.folder.Path().string();
        form.Resize(1280, 800);
        form.Activate();
        for (int i = 0; i < 400 && !::testing::Test::HasFailure(); ++i) {
            const std::string act = user.NextAct(form);
            std::string error;
            ASSERT_TRUE(script.RunLine(act, error)) << act << ": " << error;
            ExpectSoundForm(form, " after " + act.substr(0, 80) + ", seed " + std::to_string(seed));
        }
    }
}

}  // namespace
}  // namespace zandrell
