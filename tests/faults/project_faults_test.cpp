// Every act that writes what a user has typed, against every fault at every call of the system.
#include <gtest/gtest.h>

#include "faults/fault_folder.h"
#include "faults/faulty_run.h"
#include "projects/desk_session.h"

namespace zandrell {
namespace {

using faults::FaultyAct;
using faults::FolderContent;
using faults::Ready;

std::string State(const std::string& text) {
    DeskFields fields;
    fields.FillWith(text);
    fields.coil.text = "90";
    return WorkingStateText(fields.Refer());
}

std::string ProjectOf(const std::string& text) {
    return ProjectText({"Halle", "", "", "QV"}, State(text));
}

class ProjectFaults : public testing::Test {
  protected:
    // An act of a program that has loaded "old", in which "typed" was typed since.
    faults::ProgramAct Act(std::function<void(RunningDesk&)> act) const {
        return [folder = folder_.Path(), act = std::move(act)](const Ready& ready) {
            RunningDesk program(folder);
            program.desk.Activate();
            program.fields.FillWith("typed");
            program.shared.ProjectFolder = (folder / "projects").string();
            ready();
            act(program);
            return static_cast<int>(program.user.messages.size() + program.user.questions.size());
        };
    }

    void Try(const FaultyAct& faulty) { faults::TryAndReport(folder_.Path(), faulty); }

    faults::FaultFolder folder_;
    const FolderContent before_ = {{"QV_ACT.dat", State("old")},
                                   {"ZANDData.dat", "0,0\r\n"},
                                   {"QV_ACT.bak", State("older")},
                                   {"projects/Halle.PRJ", ProjectOf("22")}};
    const std::vector<std::string> recent_ = {"qv_recent.dat"};
};

TEST_F(ProjectFaults, QuickSave) {
    Try({"quick save", before_, Act([](RunningDesk& p) { p.desk.QuickSave(); })});
}

TEST_F(ProjectFaults, FirstSave) {
    FolderContent before = before_;
    before.erase("QV_ACT.dat");
    Try({"first save", before, Act([](RunningDesk& p) { p.desk.QuickSave(); })});
}

TEST_F(ProjectFaults, SaveAtTheEnd) {
    Try({"end", before_, Act([](RunningDesk& p) { p.desk.SaveAtEnd(); })});
}

TEST_F(ProjectFaults, LoadOfAProject) {
    Try({"load project", before_,
         Act([this](RunningDesk& p) { p.desk.OpenProject(folder_.Path() / "projects/Halle.PRJ"); }),
         recent_, true});
}

TEST_F(ProjectFaults, SaveOfAProject) {
    Try({"save project", before_, Act([this](RunningDesk& p) {
             p.shared.LastProjectFile = "Halle.PRJ";
             p.desk.store.folder_in_hand = (folder_.Path() / "projects/").string();
             p.desk.SaveProject();
         }),
         recent_});
}

TEST_F(ProjectFaults, SaveOfANewProject) {
    Try({"save under", before_, Act([](RunningDesk& p) {
             p.user.in_window = [](ModalForm& window) {
                 window.UserSetText("ProNam", "Neu.prj");
                 window.UserClick("Command3D1");
             };
             p.desk.SaveProjectUnder();
         }),
         recent_});
}

TEST_F(ProjectFaults, QuickLoad) {
    Try({"quick load", before_, Act([](RunningDesk& p) { p.desk.QuickLoad(); })});
}

TEST_F(ProjectFaults, NewProject) {
    FaultyAct faulty{"new project", before_, Act([](RunningDesk& p) { p.desk.NewProject(); })};
    faulty.keeps_previous = true;
    Try(faulty);
}

TEST_F(ProjectFaults, RestoringThePreviousState) {
    Try({"previous state", before_, Act([](RunningDesk& p) { p.desk.RestorePrevious(); })});
}

TEST_F(ProjectFaults, HandOver) {
    FolderContent before = before_;
    before["Own.dat"] = State("handed over");
    FaultyAct faulty{"hand-over", before, Act([this](RunningDesk& p) {
                         std::ofstream(folder_.Path() / "ZANDData.dat")
                             << "1,1,\"\",\"\",\"Own.dat\",12,7\r\n";
                         p.desk.Activate();
                     })};
    faults::Restore(folder_.Path(), before);
    // The file that waits is written by the act itself, so that it has three contents.
    const auto undisturbed = faults::RunAct(faulty.act, faults::Fault::None, 0);
    EXPECT_EQ(faults::ContentOf(folder_.Path()).at("ZANDData.dat"), "0,0\r\n");
    for (int call = 1; call <= undisturbed.calls; ++call) {
        for (const auto fault : {faults::Fault::Fails, faults::Fault::KillBefore}) {
            faults::Restore(folder_.Path(), before);
            faults::RunAct(faulty.act, fault, call);
            const FolderContent now = faults::ContentOf(folder_.Path());
            EXPECT_EQ(now.at("Own.dat"), State("handed over")) << call;
            EXPECT_TRUE(now.at("QV_ACT.bak") == State("older") ||
                        now.at("QV_ACT.bak").find("typed") != std::string::npos)
                << call;
        }
    }
}

}  // namespace
}  // namespace zandrell
