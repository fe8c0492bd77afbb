// Lines of any bytes are acts of a user or of an opener on the selection window, or errors. Acts
// that reach beyond the data folder are left out: windows that open are cancelled at once, and no
// file of the machine is read.
#include <sstream>

#include "fuzz/cancelling_user.h"
#include "fuzz/fuzz_folder.h"
#include "fuzz/script_lines.h"
#include "shell/form_script.h"
#include "shell/selection_stage.h"

namespace {

using namespace zandrell;

// Two series of a few units, as text of fixed records.
std::string Series() {
    std::string bytes;
    for (const char* capacity : {"5,5", "9", "12", "30"}) {
        std::string record(KatalogSatz::kLength, ' ');
        const auto put = [&record](KatalogFeld field, std::string_view text) {
            record.replace(PlaceOf(field).offset, text.size(), text);
        };
        put(KatalogFeld::KatTyp, "AK");
        put(KatalogFeld::KatWert, "4,2");
        put(KatalogFeld::KatLeistung, capacity);
        put(KatalogFeld::KatAntrieb, "0,5");
        put(KatalogFeld::KatLamelle, "4,5");
        bytes += record;
    }
    return bytes;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static fuzz::Folder folder;
    static fuzz::CancellingUser user;
    static SelectionDesk* desk = [] {
        folder.Write("ULMAKN.rdm", Series());
        for (const char* index : {"I600.DAT", "I650.DAT", "I550.DAT", "I250.DAT", "I150.DAT"}) {
            folder.Write(index, "ULMAK,1,Ulm AK,0\nULMAK,1,Ulm AL,2\n");
        }
        const NamedFolder named(folder.Files().DataFolder());
        auto* made = new SelectionDesk(user, folder.Files(), named);
        made->Load();
        return made;
    }();
    SelectionStage stage(*desk);
    std::ostringstream dumps;
    FormScript script(stage, dumps);
    fuzz::RunLines(script, std::string(fuzz::Bytes(data, size)));
    return 0;
}
