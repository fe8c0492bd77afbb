// kparam.dat and rechOpt.dat of any bytes give settings that the program can work with.
#include "fuzz/fuzz_folder.h"
#include "shell/start_up.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zandrell;
    static fuzz::Folder folder;
    const std::filesystem::path home = folder.Files().DataFolder();
    for (const char* name : {"kparam.dat", "rechOpt.dat"})
        folder.Write(name, fuzz::Bytes(data, size));
    SharedValues shared;
    DataFiles files(home);
    ReadSuiteParameters(NamedFolder(home), files, shared);
    fuzz::Require(shared.LanguageTag.size() >= 3 && shared.PrintFontName.size() >= 3);
    fuzz::Require(!shared.CurrencyTag.empty() && !shared.LabelFontSize.empty());
    fuzz::Require(shared.VersionText == kVersion && !shared.LogoFile.empty());
    fuzz::Require(!files.DataFolder().empty());
    LoadBranding(folder.Files(), shared);
    fuzz::Require(!shared.AppTitle.empty());
    return 0;
}
