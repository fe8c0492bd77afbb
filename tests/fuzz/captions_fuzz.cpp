// Caption files of any bytes, and messages with places in any state.
#include "base/captions.h"
#include "fuzz/fuzz_folder.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zandrell;
    static fuzz::Folder folder;
    const std::string_view bytes = fuzz::Bytes(data, size);
    for (const char* name : {"Caption.ENG", "AirCoCap.ENG", "QVCapt.ENG"})
        folder.Write(name, bytes);
    Captions captions;
    LoadCaptions(folder.Files(), "ENG", captions);
    LoadAirCoCaptions(folder.Files(), "ENG", captions);
    LoadQVCaptions(folder.Files(), "ENG", captions);
    fuzz::Require(captions[Caption::Booster] == "Booster");
    FilledIn(bytes, {bytes, "%1"});
    return 0;
}
