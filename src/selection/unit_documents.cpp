#include "selection/unit_documents.h"

#include "base/delimited_text.h"

namespace zandrell {
namespace {

// What a document is made of is the viewer's affair, its size too.
bool HoldsAnything(const DataFiles& files, const std::string& name) {
    if (name.empty()) return false;
    const auto stamp = files.Stamp(name);
    return stamp && stamp->size > 0;
}

}  // namespace

bool HandDocumentsOver(const SelectionContext& context, const VentZeigControls& controls) {
    const SelectionShared& selection = context.selection;
    const bool first = HoldsAnything(context.files, selection.ViewDatei1);
    const bool second = HoldsAnything(context.files, selection.ViewDatei2);
    if (!first && !second) return false;
    DelimitedWriter writer;
    for (const std::string* item : {&selection.ViewDatei1, &selection.ViewDatei2,
                                    &controls.ventlabel.text, &controls.PN19.text}) {
        writer.Text(*item).EndLine();
    }
    return context.files.OpenForOutput("zdview.dat", writer.Result()) == FileStatus::Ok;
}

}  // namespace zandrell
