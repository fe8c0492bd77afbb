// The whole program on the delivered data set, from the options to a saved project. This takes
// minutes: `./dev faults` runs it, the usual tests do not.
#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>

#include "faults/faulty_run.h"
#include "projects/desk_session.h"
#include "shell/main_form.h"

namespace zandrell {
namespace {

void TakeSettings(ModalForm& options) {
    options.UserSetText("qvtmaxi", "45");
    options.UserClick("Command3D1");
}

void TakeName(ModalForm& dialog) {
    dialog.UserSetText("ProNam", "Halle.prj");
    dialog.UserClick("Command3D1");
}

// The program is started before the faults begin.
struct Started {
    explicit Started(const std::filesystem::path& folder)
        : files(folder), form(user, files, NamedFolder(folder)) {
        form.Load();
        form.shared.ProjectFolder = folder.string();
        form.Resize(1280, 800);
        form.Activate();
    }
    DeskUser user;
    DataFiles files;
    MainForm form;
};

int SaveAProject(const std::filesystem::path& folder, const faults::Ready& ready) {
    Started started(folder);
    auto& [user, files, form] = started;
    user.in_window = [&](ModalForm& window) {
        if (window.form.Name() == "qvopt") TakeSettings(window);
        if (window.form.Name() == "ProjLaden") TakeName(window);
    };
    user.answers.assign(20, true);
    ready();
    form.UserClick("optButt");
    form.UserSetText("Proj_T", "Halle");
    form.UserSetText("Taus", "31");
    form.UserReturn("Taus");
    form.UserClick("ProSpeichU");
    return static_cast<int>(user.messages.size());
}

TEST(WholeProgramFaults, OptionsAndAProject) {
    if (std::getenv("ZANDRELL_ALL_FAULTS") == nullptr) GTEST_SKIP() << "./dev faults runs it";
    const TestFolder folder;
    folder.CopyWholeSet();
    // The curves of the first paint are in their file then.
    { const Started first(folder.Path()); }
    const faults::FaultyAct act{
        "whole program",
        faults::ContentOf(folder.Path()),
        [&folder](const faults::Ready& ready) { return SaveAProject(folder.Path(), ready); },
        // What is read again at every paint, and what can be made again.
        {"qv_wert.dat", "qv_recent.dat"}};
    const faults::FaultCounts counts = TryAllFaults(folder.Path(), act);
    EXPECT_GT(counts.points, 100);
    std::cout << act.name << ": " << counts.points << " faults, " << counts.killed
              << " of them kills; all new " << counts.new_content << ", something old "
              << counts.old_content << ", told " << counts.told << "\n";
}

}  // namespace
}  // namespace zandrell
