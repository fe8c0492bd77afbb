// A project of any bytes is read, and what is saved of it is the same from then on; names of any
// bytes follow their rules.
#include "base/text_encoding.h"
#include "fuzz/fuzz_input.h"
#include "projects/project_file.h"
#include "projects/project_preview.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zandrell;
    const std::string text = DecodeText(fuzz::Bytes(data, size));
    const ProjectFile project = ReadProject(text);
    fuzz::Require(ReadProjectHeader(text).tag == project.header.tag);
    const std::string saved = ProjectText(project.header, ItemsText(project.items));
    const ProjectFile again = ReadProject(DecodeText(EncodeText(saved)));
    fuzz::Require(again.items.size() == project.items.size());
    fuzz::Require(ProjectText(again.header, ItemsText(again.items)) == saved);
    const std::string completed = CompletedName(project.header.title, project.header.remark);
    fuzz::Require(HasProjectExtension(completed));
    fuzz::Require(HasProjectExtension(SavedName(project.header.title, project.header.remark)));
    // What the dialog has completed loses no letters.
    if (!IsBareExtension(completed)) {
        fuzz::Require(EqualIgnoringCase(SavedName(completed, ""), Trimmed(completed)));
    }
    fuzz::Require(Shortened(text, 24).size() <= 4 * 24);
    WorkingFileOf(project.header.tag);
    return 0;
}
