// Lines of any bytes are acts of a user, or errors. Acts that reach beyond the data folder are left
// out: windows that open are cancelled at once, and no file of the machine is read.
#include <sstream>

#include "fuzz/cancelling_user.h"
#include "fuzz/fuzz_folder.h"
#include "fuzz/script_lines.h"
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
    fuzz::RunLines(script, std::string(fuzz::Bytes(data, size)));
    return 0;
}
