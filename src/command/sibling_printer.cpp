#include "command/sibling_printer.h"

#include <sstream>

#include "command/process_ends.h"
#include "command/sheet_text.h"

namespace zandrell {

std::vector<std::string> SiblingPrinter::FontNames() {
    std::string output, error;
    std::vector<std::string> names;
    if (!RunSibling(kDrawingProgram, {std::string(kFontsOption)}, "", output, error)) return names;
    std::istringstream lines(output);
    for (std::string name; std::getline(lines, name);) names.push_back(name);
    return names;
}

DeviceSize SiblingPrinter::PrintableSize(const std::string& paper, bool landscape) {
    Sheet sheet;
    sheet.paper = paper;
    sheet.landscape = landscape;
    return {static_cast<int>(sheet.WidthMm()), static_cast<int>(sheet.HeightMm())};
}

bool SiblingPrinter::Print(const Sheet& sheet, std::string& error) {
    if (path_.empty()) {
        error = "no printer: the act `printer FILE.pdf` names one";
        return false;
    }
    std::string output;
    return RunSibling(kDrawingProgram, {std::string(kPageOption), path_}, SheetAsText(sheet),
                      output, error);
}

}  // namespace zandrell
