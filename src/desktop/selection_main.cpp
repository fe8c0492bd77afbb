#include <CLI/CLI.hpp>
#include <QApplication>
#include <QPixmap>
#include <QScreen>
#include <QTimer>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

#include "canvas/canvas.h"
#include "desktop/accessible.h"
#include "desktop/look.h"
#include "desktop/qt_printing.h"
#include "desktop/selection_script.h"
#include "desktop/selection_window.h"
#include "shell/start_up.h"

namespace zandrell {
namespace {

constexpr double kShareOfScreen = 0.88;
constexpr QSize kFrameAllowance{16, 48};

struct Arguments {
    std::string data_folder, script;
    std::vector<int> size;
    double duty = 0, flow = 0;  // kW, m3/h; 0: as the last time
    int width = 0, height = 0;  // pixels; 0: as the screen allows
};

int Fail(const std::string& message) {
    std::fprintf(stderr, "zandrell-selection: %s\n", message.c_str());
    return EXIT_FAILURE;
}

bool HasDisplay() {
#if defined(Q_OS_UNIX) && !defined(Q_OS_MACOS)
    return qEnvironmentVariableIsSet("QT_QPA_PLATFORM") ||
           !qEnvironmentVariableIsEmpty("DISPLAY") ||
           !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
#else
    return true;
#endif
}

bool ReadSize(Arguments& arguments) {
    if (arguments.size.empty()) return true;
    if (arguments.size.size() != 2) return false;
    arguments.width = arguments.size[0];
    arguments.height = arguments.size[1];
    return arguments.width >= 400 && arguments.width <= kLargestPictureSide &&
           arguments.height >= 300 && arguments.height <= kLargestPictureSide;
}

QSize WindowSize(const Arguments& arguments) {
    if (arguments.width > 0) return {arguments.width, arguments.height};
    const QSize screen = QGuiApplication::primaryScreen()->availableSize();
    return QSize(1280, 800).expandedTo(screen * kShareOfScreen).boundedTo(screen - kFrameAllowance);
}

// What the main program noted goes in front of the duty of the last time.
SelectionDuty FirstDuty(const Arguments& arguments, const DataFiles& files) {
    SelectionDuty duty;
    ReadDuty(files, duty);
    if (arguments.duty > 0) duty.capacity = arguments.duty;
    return duty;
}

int Run(const Arguments& arguments, QApplication& application) {
    NamedFolder named;
    if (!arguments.data_folder.empty()) {
        named = std::filesystem::absolute(arguments.data_folder);
    }
    const QSize size = WindowSize(arguments);
    ApplyLook(application, {ScaleFor(size.width(), size.height())});
    InstallAccessibles();
    DataFiles files(PrepareDataFolder(named, true));
    QtUser user;
    SelectionDesk desk(user, files, named);
    desk.Load();
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
            const auto unit = opener.Unit();
            std::cout << (unit ? unit->name : desk.captions[Caption::NoUnitChosen]) << '\n';
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
    SelectionScript script(desk, planner, window, user);
    if (!arguments.script.empty() && !script.Start(arguments.script)) {
        return Fail(arguments.script + ": can not be read");
    }
    const int status = QApplication::exec();
    return script.Failed() ? EXIT_FAILURE : status;
}

}  // namespace
}  // namespace zandrell

int main(int argc, char** argv) {
    CLI::App command_line{"Selects components out of the catalogues of makers"};
    zandrell::Arguments arguments;
    command_line.add_option("--data", arguments.data_folder, "The data folder")->type_name("DIR");
    command_line.add_option("--duty", arguments.duty, "Required capacity in kW");
    command_line.add_option("--flow", arguments.flow, "Air flow in m3/h");
    command_line.add_option("--script", arguments.script, "Acts to perform after the start")
        ->type_name("FILE");
    command_line.add_option("--size", arguments.size, "Size of the window")
        ->delimiter('x')
        ->type_name("WxH");
    CLI11_PARSE(command_line, argc, argv);
    if (!zandrell::ReadSize(arguments)) {
        return zandrell::Fail("--size takes a width and a height in pixels, such as 1280x800");
    }
    if (!zandrell::HasDisplay()) {
        return zandrell::Fail("there is no usable display; zandrell-calc works without one");
    }
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Zandrell"));
    return zandrell::Run(arguments, application);
}
