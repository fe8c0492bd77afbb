// Lines of any bytes are acts of a user, or errors. Acts that reach beyond the data folder are left
// out: windows that open are cancelled at once, and no file of the machine is read.
#include <sstream>

#include "base/text_encoding.h"
#include "fuzz/cancelling_user.h"
#include "fuzz/fuzz_folder.h"
#include "shell/form_script.h"

using namespace zandrell;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static fuzz::Folder folder;
    static fuzz::CancellingUser user;
    static MainForm* form = [] {
        const NamedFolder named(folder.Files().DataFolder());
        auto* made = new MainForm(user, folder.Files(), named);
        made->Load();
        made->Resize(1280, 800);
        made->Activate();
        return made;
    }();
    std::ostringstream dumps;
    FormScript script(*form, dumps);
    std::istringstream lines(DecodeText(fuzz::Bytes(data, size)));
    int count = 0;
    for (std::string line; std::getline(lines, line) && ++count <= 8;) {
        if (line.find("fill") != std::string::npos) continue;
        std::string error;
        const bool done = script.RunLine(line, error);
        fuzz::Require(done || !error.empty());
    }
    return 0;
}
