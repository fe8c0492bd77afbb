// A working state of any bytes fills the fields, and what is saved of them reads back the same.
#include <string>

#include "base/text_encoding.h"
#include "fuzz/fuzz_input.h"
#include "projects/working_state.h"

namespace {

using namespace zandrell;

struct Fields {
    std::array<TextField, 17> fields{
        TextField("1"),  TextField("2"),  TextField("3"),  TextField("4"),  TextField("5"),
        TextField("6"),  TextField("7"),  TextField("8"),  TextField("9"),  TextField("10"),
        TextField("11"), TextField("12"), TextField("13"), TextField("14"), TextField("15"),
        TextField("16"), TextField("17")};
    OptionButton steam{"steam", true}, water{"water"};
    TextField coil{"coil"};

    WorkingStateFields Refer() {
        WorkingStateFields refer{{}, &steam, &water, &coil};
        for (std::size_t i = 0; i < fields.size(); ++i) refer.fields[i] = &fields[i];
        return refer;
    }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Fields first, second;
    SetWorkingState(DecodeText(fuzz::Bytes(data, size)), first.Refer());
    fuzz::Require(!first.coil.text.empty());
    const std::string saved = WorkingStateText(first.Refer());
    SetWorkingState(DecodeText(EncodeText(saved)), second.Refer());
    fuzz::Require(WorkingStateText(second.Refer()) == saved);
    return 0;
}
