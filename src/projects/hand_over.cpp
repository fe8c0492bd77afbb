#include "projects/hand_over.h"

#include <algorithm>

#include "base/delimited_text.h"
#include "base/number_text.h"
#include "base/text_encoding.h"
#include "projects/project_kind.h"
#include "projects/working_state.h"

namespace zandrell {
namespace {

constexpr int kItems = 20;
constexpr std::string_view kExtension = ".dat";
constexpr std::array<std::string_view, 11> kOwnFiles = {
    "kparam.dat",   "rechOpt.dat", "qvdata.dat", "qv_par.dat",    "qv_wert.dat", "ZANDData.dat",
    "Prodhide.dat", "BravL.dat",   "TorvL.dat",  "qv_recent.dat", "BT_calc.DAT"};

using Items = std::array<std::string, kItems + 1>;  // counted from 1

double NumberOf(const std::string& item) {
    double value = 0;
    AssignFinite(value, ParsedNumber(item));
    return value;
}

int WholeNumberOf(const std::string& item) { return RoundToInteger(NumberOf(item)).value_or(0); }

void TakeItems(const Items& items, HandOver& hand_over) {
    hand_over.file = IsWorkingStateName(items[5]) ? items[5] : std::string(kWorkingStateFile);
    hand_over.lines[0] = {NumberOf(items[6]), items[13]};
    hand_over.lines[1] = {NumberOf(items[7]), items[14]};
    hand_over.title = items[10];
    hand_over.remark = items[11];
    hand_over.project_text = items[12];
    hand_over.cooler_word = items[15];
    hand_over.window_title = items[16];
    if (KindOf(hand_over.kind).own_pressure) hand_over.pressure_bar = NumberOf(items[20]);
}

}  // namespace

bool IsWorkingStateName(std::string_view name) {
    const bool bare = name.size() > kExtension.size() &&
                      name.find_first_of(std::string_view("/\\:\0", 4)) == std::string_view::npos;
    if (!bare || !EqualIgnoringCase(name.substr(name.size() - kExtension.size()), kExtension)) {
        return false;
    }
    return std::none_of(kOwnFiles.begin(), kOwnFiles.end(),
                        [name](std::string_view own) { return EqualIgnoringCase(own, name); });
}

HandOver ReadHandOver(std::string_view text) {
    Items items;
    DelimitedReader reader(text);
    for (int i = 1; i <= kItems; ++i) reader.ReadText(items[static_cast<std::size_t>(i)]);
    HandOver hand_over;
    hand_over.file = kWorkingStateFile;
    hand_over.waiting = NumberOf(items[1]) != 0;
    if (!hand_over.waiting) return hand_over;
    hand_over.kind = WholeNumberOf(items[2]);
    if (KindOf(hand_over.kind).takes_items) TakeItems(items, hand_over);
    return hand_over;
}

std::string EmptyHandOver() { return DelimitedWriter().Number(0).Number(0).EndLine().Result(); }

std::string ReportText(const Report& report) {
    DelimitedWriter writer;
    const auto empty = [&writer](int count) {
        for (int i = 0; i < count; ++i) writer.Text("").EndLine();
    };
    const auto text = [&writer](const std::string& item) { writer.Text(item).EndLine(); };
    empty(2);
    text(report.project_file);
    text(report.project_folder);
    text(report.working_state_file);
    text(NumberText(report.first_temperature));
    text(NumberText(report.second_temperature));
    text(report.cooler_duty);
    empty(1);
    text(report.title);
    text(report.remark);
    text(report.project_text);
    empty(4);
    text(report.module_tag);
    empty(1);
    text(NumberText(0));
    writer.Number(0).EndLine();
    text(report.language_tag);
    empty(7);
    return writer.Result();
}

}  // namespace zandrell
