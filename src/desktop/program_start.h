#pragma once

#include <QSize>
#include <QString>
#include <QTranslator>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "shell/start_up.h"

class QApplication;
namespace CLI {
class App;
}

namespace zandrell {

// What the programs with windows have in common before their window stands.

// The options that all of them know.
struct StartArguments {
    std::string data_folder, script, size;
    QSize window_size;  // invalid: as the screen allows
};

// Adds those options to `command_line`, reads it, and runs `run` under an application of the
// toolkit. Answers the status of the program: that of `run`, or that of a failure that has been
// told.
int RunProgram(std::string_view program, CLI::App& command_line, StartArguments& arguments,
               int argc, char** argv, const std::function<int(QApplication&)>& run);

// Writes "PROGRAM: message" to the errors and answers the status of a failed program.
int Fail(std::string_view program, const std::string& message);

// Nothing where `name` can be the name of a data folder, else what is wrong with it.
std::string FolderNameFault(const std::string& name);

// As seen from the folder of the start; a folder that is gone by now leaves the path as it is.
std::filesystem::path WholePath(const std::string& path);

// What the command line says of the data folder; an empty name: nothing.
NamedFolder NamedDataFolder(const std::string& name);

// Reads "1280x800" into `size`, which an empty text leaves as it is. False, and a message is
// written, for anything else and for what is no size of a window.
bool ReadWindowSize(std::string_view program, const std::string& text, QSize& size);

// `wished` where it is valid, else most of the screen.
QSize WindowSizeFor(QSize wished);

// The application of the toolkit; null, and a message is written, where there is no display. A
// write beyond what a user may write is an error from then on, and not the end of the program.
std::unique_ptr<QApplication> StartApplication(std::string_view program, int& argc, char** argv);

// The words of the toolkit's own dialogs, where the system has them in the language, as long as the
// translator lives.
void TranslateToolkit(QTranslator& translator, std::string_view language_tag);

}  // namespace zandrell
