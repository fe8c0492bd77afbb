#include <CLI/CLI.hpp>
#include <QApplication>
#include <QTranslator>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "desktop/accessible.h"
#include "desktop/end_signals.h"
#include "desktop/look.h"
#include "desktop/main_window.h"
#include "desktop/program_start.h"
#include "desktop/qt_user.h"
#include "desktop/script_runner.h"

namespace zandrell {
namespace {

constexpr std::string_view kProgram = "zandrell";

struct Arguments : StartArguments {
    std::string project;
};

int Run(const Arguments& arguments, QApplication& application) {
    const NamedFolder named = NamedDataFolder(arguments.data_folder);
    const std::filesystem::path folder = PrepareDataFolder(named, true);
    const QSize size = WindowSizeFor(arguments.window_size);
    ApplyLook(application, {ScaleFor(size.width(), size.height())});
    InstallAccessibles();
    DataFiles files(folder);
    QtUser user;
    MainForm form(user, files, named);
    form.Load();
    QTranslator translator;
    TranslateToolkit(translator, form.shared.LanguageTag);
    MainWindow window(form, files, user);
    window.resize(size);
    window.show();
    window.Start();
    const EndSignals end_signals([&form] { form.EndForSystem(); }, user);
    if (!arguments.project.empty()) {
        window.OpenProject(WholePath(arguments.project));
    }
    ScriptRunner script(form, window, user);
    if (!arguments.script.empty() && !script.Start(arguments.script)) {
        return Fail(kProgram, arguments.script + ": can not be read");
    }
    if (arguments.script.empty()) window.ShowFirstRunHint();
    const int status = QApplication::exec();
    return script.Failed() ? EXIT_FAILURE : status;
}

}  // namespace
}  // namespace zandrell

int main(int argc, char** argv) {
    CLI::App command_line{"Humid air: Mollier and Carrier chart, processes of air treatment"};
    zandrell::Arguments arguments;
    command_line.add_option("project", arguments.project, "A project to open")->type_name("FILE");
    return zandrell::RunProgram(
        zandrell::kProgram, command_line, arguments, argc, argv,
        [&](QApplication& application) { return zandrell::Run(arguments, application); });
}
