#include <CLI/CLI.hpp>
#include <QApplication>
#include <QTranslator>
#include <cstdlib>
#include <iostream>
#include <string>

#include "desktop/accessible.h"
#include "desktop/end_signals.h"
#include "desktop/look.h"
#include "desktop/program_start.h"
#include "desktop/qt_printing.h"
#include "desktop/selection_script.h"
#include "desktop/selection_window.h"

namespace zandrell {
namespace {

constexpr std::string_view kProgram = "zandrell-selection";

struct Arguments : StartArguments {
    double duty = 0, flow = 0;  // kW, m3/h; 0: as the last time
};

// What the main program noted goes in front of the duty of the last time.
SelectionDuty FirstDuty(const Arguments& arguments, const DataFiles& files) {
    SelectionDuty duty;
    ReadDuty(files, duty);
    if (arguments.duty > 0) duty.capacity = arguments.duty;
    return duty;
}

int Run(const Arguments& arguments, QApplication& application) {
    const NamedFolder named = NamedDataFolder(arguments.data_folder);
    const QSize size = WindowSizeFor(arguments.window_size);
    ApplyLook(application, {ScaleFor(size.width(), size.height())});
    InstallAccessibles();
    DataFiles files(PrepareDataFolder(named, true));
    QtUser user;
    SelectionDesk desk(user, files, named);
    desk.Load();
    QTranslator translator;
    TranslateToolkit(translator, desk.shared.LanguageTag);
    QtPrinting printing(user, desk.captions);
    desk.SetDevice(&printing);
    const SelectionContext context{files, desk.shared, desk.captions, user, desk.selection};
    SelectionOpener opener(context, desk.window);
    PlannerForm planner(context, desk.window, opener);
    planner.SetCaptions();
    SelectionWindow window(desk, planner, user);
    window.on_end = [&](SelectionEnd end) {
        if (end == SelectionEnd::WithResult) {
            desk.window.BT_file_create();
            if (const auto unit = opener.Unit()) std::cout << unit->name << '\n';
        }
        window.close();
        QApplication::quit();
    };
    window.resize(size);
    window.show();
    planner.Start(FirstDuty(arguments, files));
    planner.NoteAirFlow(arguments.flow);
    window.Refresh();
    window.TakeFocus();
    // The duty in force is kept whenever it is taken: nothing is left to save.
    const EndSignals end_signals([] {}, user);
    SelectionStage stage(desk);
    SelectionScript script(stage, planner, window, user);
    if (!arguments.script.empty() && !script.Start(arguments.script)) {
        return Fail(kProgram, arguments.script + ": can not be read");
    }
    const int status = QApplication::exec();
    return script.Failed() ? EXIT_FAILURE : status;
}

}  // namespace
}  // namespace zandrell

int main(int argc, char** argv) {
    CLI::App command_line{"Selects components out of the catalogues of makers"};
    zandrell::Arguments arguments;
    command_line.add_option("--duty", arguments.duty, "Required capacity in kW")
        ->check(CLI::PositiveNumber);
    command_line.add_option("--flow", arguments.flow, "Air flow in m3/h")
        ->check(CLI::PositiveNumber);
    return zandrell::RunProgram(
        zandrell::kProgram, command_line, arguments, argc, argv,
        [&](QApplication& application) { return zandrell::Run(arguments, application); });
}
