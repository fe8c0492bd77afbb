#include <CLI/CLI.hpp>
#include <QApplication>
#include <QLibraryInfo>
#include <QScreen>
#include <QString>
#include <QTranslator>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "base/process_signals.h"
#include "canvas/canvas.h"
#include "desktop/accessible.h"
#include "desktop/end_signals.h"
#include "desktop/look.h"
#include "desktop/main_window.h"
#include "desktop/qt_user.h"
#include "desktop/script_runner.h"
#include "shell/start_up.h"

namespace zandrell {
namespace {

constexpr double kShareOfScreen = 0.88;
// What the frame of a window takes at most; it is known only when the window stands.
constexpr QSize kFrameAllowance{16, 48};
constexpr const char* kNoDisplay = "there is no usable display; zandrell-calc works without one";

struct Arguments {
    std::string data_folder, script, size, project;
    int width = 0, height = 0;  // pixels; 0: as the screen allows
};

int Fail(const std::string& message) {
    std::fprintf(stderr, "zandrell: %s\n", message.c_str());
    return EXIT_FAILURE;
}

// The toolkit itself would abort the process where there is no display.
bool HasDisplay() {
#if defined(Q_OS_UNIX) && !defined(Q_OS_MACOS)
    return qEnvironmentVariableIsSet("QT_QPA_PLATFORM") ||
           !qEnvironmentVariableIsEmpty("DISPLAY") ||
           !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
#else
    return true;
#endif
}

// While the application is made, the toolkit's own complaints about displays are left out, and what
// would abort the process becomes one clear line.
void FailWithoutDisplay(QtMsgType type, const QMessageLogContext&, const QString&) {
    if (type != QtFatalMsg) return;
    Fail(kNoDisplay);
    std::_Exit(EXIT_FAILURE);
}

bool ReadSize(Arguments& arguments) {
    if (arguments.size.empty()) return true;
    const int read =
        std::sscanf(arguments.size.c_str(), "%5dx%5d", &arguments.width, &arguments.height);
    return read == 2 && arguments.width >= 400 && arguments.width <= kLargestPictureSide &&
           arguments.height >= 300 && arguments.height <= kLargestPictureSide;
}

// As seen from the folder of the start; a folder that is gone by now leaves the path as it is.
std::filesystem::path Whole(const std::string& path) {
    std::error_code error;
    const auto whole = std::filesystem::absolute(path, error);
    return error ? std::filesystem::path(path) : whole;
}

NamedFolder DataFolderOf(const Arguments& arguments) {
    if (arguments.data_folder.empty()) return {};
    return Whole(arguments.data_folder);
}

// Most of the screen, where nobody asks for something else.
QSize WindowSize(const Arguments& arguments) {
    if (arguments.width > 0) return {arguments.width, arguments.height};
    const QSize screen = QGuiApplication::primaryScreen()->availableSize();
    const QSize room = screen - kFrameAllowance;
    return QSize(1280, 800).expandedTo(screen * kShareOfScreen).boundedTo(room);
}

// The words of the toolkit's own dialogs, where the system has them in the language.
void TranslateToolkit(QTranslator& translator, std::string_view language_tag) {
    constexpr std::pair<std::string_view, const char*> kFiles[] = {
        {"DEU", "qtbase_de"}, {"FRA", "qtbase_fr"},    {"ESP", "qtbase_es"},   {"ITA", "qtbase_it"},
        {"NDL", "qtbase_nl"}, {"POR", "qtbase_pt_BR"}, {"TWA", "qtbase_zh_TW"}};
    for (const auto& [tag, file] : kFiles) {
        if (tag != language_tag) continue;
        const QString folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
        if (translator.load(QLatin1String(file), folder)) {
            QApplication::installTranslator(&translator);
        }
    }
}

int Run(const Arguments& arguments, QApplication& application) {
    const NamedFolder named = DataFolderOf(arguments);
    const std::filesystem::path folder = PrepareDataFolder(named, true);
    const QSize size = WindowSize(arguments);
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
    const EndSignals end_signals(form, user);
    if (!arguments.project.empty()) {
        window.OpenProject(Whole(arguments.project));
    }
    ScriptRunner script(form, window, user);
    if (!arguments.script.empty() && !script.Start(arguments.script)) {
        return Fail(arguments.script + ": can not be read");
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
    command_line.add_option("--data", arguments.data_folder, "The data folder")
        ->type_name("DIR")
        ->check([](const std::string& name) {
            return name.empty() ? std::string("the name of the folder is empty") : std::string();
        });
    command_line.add_option("--script", arguments.script, "Acts to perform after the start")
        ->type_name("FILE");
    command_line.add_option("--size", arguments.size, "Size of the window")->type_name("WxH");
    command_line.add_option("project", arguments.project, "A project to open")->type_name("FILE");
    CLI11_PARSE(command_line, argc, argv);
    if (!zandrell::ReadSize(arguments)) {
        return zandrell::Fail("--size takes a width and a height in pixels, such as 1280x800");
    }
    zandrell::TakeFileLimitAsError();
    if (!zandrell::HasDisplay()) {
        return zandrell::Fail(zandrell::kNoDisplay);
    }
    qInstallMessageHandler(zandrell::FailWithoutDisplay);
    QApplication application(argc, argv);
    qInstallMessageHandler(nullptr);
    QApplication::setApplicationName(QStringLiteral("Zandrell"));
    return zandrell::Run(arguments, application);
}
