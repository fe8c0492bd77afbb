// A hand-over of any bytes names nothing that is not a working state of its own.
#include <cmath>

#include "base/text_encoding.h"
#include "fuzz/fuzz_input.h"
#include "projects/hand_over.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zandrell;
    const HandOver taken = ReadHandOver(DecodeText(fuzz::Bytes(data, size)));
    fuzz::Require(IsWorkingStateName(taken.file));
    fuzz::Require(taken.file.find_first_of("/\\") == std::string::npos);
    fuzz::Require(std::isfinite(taken.pressure_bar));
    for (const TemperatureLine& line : taken.lines) fuzz::Require(std::isfinite(line.temperature));
    Report report;
    report.project_file = report.title = report.cooler_duty = taken.title;
    fuzz::Require(!ReadHandOver(ReportText(report)).waiting);
    return 0;
}
