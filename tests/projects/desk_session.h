#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "projects/project_desk.h"
#include "projects/project_file.h"
#include "support/test_folder.h"

namespace zandrell {

// Answers questions from a queue (no, when it is empty) and acts in a window that opens.
class DeskUser : public UserInterface {
  public:
    void ShowMessage(const Message& message) override { messages.push_back(message.text); }
    bool Confirm(const Message& question) override {
        questions.push_back(question.text);
        if (answers.empty()) return false;
        const bool answer = answers.front();
        answers.pop_front();
        return answer;
    }
    void ShowModal(ModalForm& window) override {
        if (in_window) in_window(window);
        if (!window.closed) window.UserClick(window.cancel_control);
    }
    void WaitMilliseconds(int) override {}
    void CopyChart() override {}
    bool ChoosePrinter(const std::string&) override { return false; }

    std::vector<std::string> messages, questions;
    std::deque<bool> answers;
    std::function<void(ModalForm&)> in_window;
};

// The working-state fields without the window to which they belong.
struct DeskFields {
    std::vector<TextField> fields = std::vector<TextField>(17, TextField("field"));
    OptionButton steam{"Option3D3", true}, water{"Option3D4"};
    TextField coil{"phiKanal"};

    WorkingStateFields Refer() {
        WorkingStateFields refer{{}, &steam, &water, &coil};
        for (std::size_t i = 0; i < 17; ++i) refer.fields[i] = &fields[i];
        return refer;
    }
    std::string& operator[](std::size_t i) { return fields[i].text; }
    void FillWith(const std::string& text) {
        for (auto& field : fields) field.text = text;
    }
};

// One running program on a data folder, as far as projects go.
struct RunningDesk {
    explicit RunningDesk(const std::filesystem::path& folder) : files(folder) {
        shared.ProjectFolder = folder.string();
        captions[Caption::Project] = "project";
        captions[Caption::Load] = "load";
        captions[Caption::Save] = "save";
        captions[Caption::SaveAsSecond] = "as";
        captions[Caption::Delete] = "delete";
    }
    DataFiles files;
    SharedValues shared;
    Captions captions;
    DeskUser user;
    DeskFields fields;
    std::string duty = " 12";
    int loads = 0, closed_dialogs = 0;
    ProjectDesk desk{
        {files, shared, captions, user},
        fields.Refer(),
        duty,
        {[this] { ++loads; }, [this] { ++closed_dialogs; }, [](bool) {}, [](Caption) {}}};
};

class DeskTest : public testing::Test {
  protected:
    static std::string State(const std::string& text) {
        DeskFields fields;
        fields.FillWith(text);
        fields.coil.text = "90";
        return WorkingStateText(fields.Refer());
    }
    static std::string Project(const std::string& title, const std::string& text,
                               const std::string& tag = "QV") {
        return ProjectText({title, "remark", "", tag}, State(text));
    }

    TestFolder folder_;
    const std::filesystem::path start_ = std::filesystem::current_path();
    RunningDesk program_{folder_.Path()};
    ProjectDesk& desk_ = program_.desk;
    SharedValues& shared_ = program_.shared;
    DeskUser& user_ = program_.user;
    DeskFields& fields_ = program_.fields;
};

}  // namespace zandrell
