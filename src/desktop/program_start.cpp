#include "desktop/program_start.h"

#include <CLI/CLI.hpp>
#include <QApplication>
#include <QLibraryInfo>
#include <QScreen>
#include <cstdio>
#include <cstdlib>
#include <utility>

#include "base/process_signals.h"
#include "canvas/canvas.h"

namespace zandrell {
namespace {

constexpr double kShareOfScreen = 0.88;
// What the frame of a window takes at most; it is known only when the window stands.
constexpr QSize kFrameAllowance{16, 48};
constexpr QSize kLeastSize{400, 300};
constexpr const char* kNoDisplay = "there is no usable display; zandrell-calc works without one";

std::string starting_program;

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
    Fail(starting_program, kNoDisplay);
    std::_Exit(EXIT_FAILURE);
}

}  // namespace

int Fail(std::string_view program, const std::string& message) {
    std::fprintf(stderr, "%.*s: %s\n", static_cast<int>(program.size()), program.data(),
                 message.c_str());
    return EXIT_FAILURE;
}

int RunProgram(std::string_view program, CLI::App& command_line, StartArguments& arguments,
               int argc, char** argv, const std::function<int(QApplication&)>& run) {
    command_line.add_option("--data", arguments.data_folder, "The data folder")
        ->type_name("DIR")
        ->check(FolderNameFault);
    command_line.add_option("--script", arguments.script, "Acts to perform after the start")
        ->type_name("FILE");
    command_line.add_option("--size", arguments.size, "Size of the window")->type_name("WxH");
    CLI11_PARSE(command_line, argc, argv);
    if (!ReadWindowSize(program, arguments.size, arguments.window_size)) return EXIT_FAILURE;
    const auto application = StartApplication(program, argc, argv);
    return application ? run(*application) : EXIT_FAILURE;
}

std::string FolderNameFault(const std::string& name) {
    return name.empty() ? "the name of the folder is empty" : "";
}

std::filesystem::path WholePath(const std::string& path) {
    std::error_code error;
    const auto whole = std::filesystem::absolute(path, error);
    return error ? std::filesystem::path(path) : whole;
}

NamedFolder NamedDataFolder(const std::string& name) {
    if (name.empty()) return {};
    return WholePath(name);
}

bool ReadWindowSize(std::string_view program, const std::string& text, QSize& size) {
    if (text.empty()) return true;
    int width = 0, height = 0, end = 0;
    const int read = std::sscanf(text.c_str(), "%5dx%5d%n", &width, &height, &end);
    const bool whole = read == 2 && end == static_cast<int>(text.size());
    if (whole && width >= kLeastSize.width() && width <= kLargestPictureSide &&
        height >= kLeastSize.height() && height <= kLargestPictureSide) {
        size = {width, height};
        return true;
    }
    Fail(program, "--size takes a width and a height in pixels, such as 1280x800");
    return false;
}

QSize WindowSizeFor(QSize wished) {
    if (wished.isValid()) return wished;
    const QSize screen = QGuiApplication::primaryScreen()->availableSize();
    return QSize(1280, 800).expandedTo(screen * kShareOfScreen).boundedTo(screen - kFrameAllowance);
}

std::unique_ptr<QApplication> StartApplication(std::string_view program, int& argc, char** argv) {
    TakeFileLimitAsError();
    if (!HasDisplay()) {
        Fail(program, kNoDisplay);
        return nullptr;
    }
    starting_program = program;
    qInstallMessageHandler(FailWithoutDisplay);
    auto application = std::make_unique<QApplication>(argc, argv);
    qInstallMessageHandler(nullptr);
    QApplication::setApplicationName(QStringLiteral("Zandrell"));
    return application;
}

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

}  // namespace zandrell
