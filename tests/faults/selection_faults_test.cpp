// What the selection writes, against every fault at every call of the system.
#include <gtest/gtest.h>

#include <sstream>

#include "faults/fault_folder.h"
#include "selection/planner_form.h"
#include "shell/form_script.h"
#include "shell/selection_desk.h"
#include "support/catalogue_files.h"
#include "support/test_folder.h"

namespace zandrell {
namespace {

// A planner in front of a list of two coolers.
struct Planning {
    explicit Planning(const std::filesystem::path& folder)
        : files(folder), desk(user, files, NamedFolder(folder)) {
        desk.Load();
        planner.SetCaptions();
        planner.ask_file = [folder](const std::string&) { return (folder / "list.csv").string(); };
        planner.Start({});
    }

    std::istringstream no_script;
    std::ostringstream no_dumps;
    ScriptedUser user{no_script, no_dumps};
    DataFiles files;
    SelectionDesk desk;
    SelectionContext context{files, desk.shared, desk.captions, user, desk.selection};
    SelectionOpener opener{context, desk.window};
    PlannerForm planner{context, desk.window, opener};
};

faults::FolderContent Catalogue() {
    const TestFolder folder;
    for (const char* name :
         {"kparam.dat", "Caption.ENG", "AirCoCap.ENG", "QVCapt.ENG", "refrigerants.csv"}) {
        folder.CopyStaged(name);
    }
    using enum KatalogFeld;
    folder.Write("ULMAKN.rdm",
                 selection_test::RecordBytes({{KatTyp, "AK 1"}, {KatLeistung, "9"}}) +
                     selection_test::RecordBytes({{KatTyp, "AK 2"}, {KatLeistung, "12"}}));
    folder.Write("I600.DAT", "ULMAK,1,Ulm AK,0\n");
    folder.Write("list.csv", "the list of yesterday\r\n");
    return faults::ContentOf(folder.Path());
}

TEST(SelectionFaults, ListAsCsv) {
    const faults::FaultFolder folder;
    const faults::FaultyAct act{"list as CSV", Catalogue(), [&folder](const faults::Ready& ready) {
                                    Planning planning(folder.Path());
                                    ready();
                                    planning.planner.UserClick("Csv");
                                    const std::string file = (folder.Path() / "list.csv").string();
                                    return planning.planner.Message.text == "Saved " + file ? 0 : 1;
                                }};
    TryAndReport(folder.Path(), act);
}

}  // namespace
}  // namespace zandrell
