#include "shell/start_up.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdlib>

#include "base/delimited_text.h"
#include "base/number_text.h"
#include "base/text_encoding.h"
#include "base/text_helpers.h"

namespace zandrell {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kFolderName = "Zandrell";
constexpr std::size_t kParameterFields = 30;
constexpr std::size_t kBrandingRecordLength = 3;
constexpr std::size_t kBrandingOffsetRecord = 153, kTitleFirstRecord = 201, kTitleLastRecord = 299;

fs::path CurrentFolder() {
    std::error_code error;
    return fs::current_path(error);
}

fs::path FolderOfVariable(const char* name) {
    const char* value = std::getenv(name);
    // A relative path in such a variable is to be ignored by the rules of the desktop folders.
    return value != nullptr && value[0] == '/' ? fs::path(value) : fs::path();
}

// Other characters would lead a file name out of the data folder.
bool IsLanguageTag(const std::string& text) {
    const auto is_letter = [](char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); };
    return text.size() == 3 && std::all_of(text.begin(), text.end(), is_letter);
}

bool IsTooShort(const std::string& text) { return text.size() < 3; }

int WholeNumber(const std::string& field, int otherwise) {
    return RoundToInteger(ParsedNumber(field)).value_or(otherwise);
}

bool IsFolder(const fs::path& path) {
    std::error_code error;
    return fs::is_directory(path, error);
}

// Absolute and without a separator at its end, whatever way it was written.
fs::path WholePath(const fs::path& path) {
    std::error_code error;
    const fs::path whole = fs::absolute(path, error);
    if (error || whole.empty()) return path;
    const fs::path normal = whole.lexically_normal();
    return normal.has_filename() || !normal.has_relative_path() ? normal : normal.parent_path();
}

// A folder that is not there is not taken: the program goes on with the one of the start. The name
// of such a folder is the answer.
std::optional<fs::path> TakeFolders(const std::array<std::string, kParameterFields + 1>& fields,
                                    const NamedFolder& named, DataFiles& files,
                                    SharedValues& shared) {
    const std::string folder = Trimmed(fields[2]);
    std::optional<fs::path> missing;
    if (IsFolder(folder)) files.SetDataFolder(WholePath(folder));
    if (!folder.empty() && !IsFolder(folder)) missing = folder;
    shared.ProjectFolder = fields[19];
    if (shared.ProjectFolder.empty() || shared.ProjectFolder == "C:\\") {
        shared.ProjectFolder = CurrentFolder().string();
    }
    shared.LogoFile = fields[23];
    if (Trimmed(shared.LogoFile).empty()) {
        shared.LogoFile = (files.DataFolder() / "zdsample.jpg").string();
    }
    if (folder.empty()) files.SetDataFolder(FindDataFolder(2, named));
    return missing;
}

void TakeTexts(const std::array<std::string, kParameterFields + 1>& fields, SharedValues& shared) {
    shared.LanguageTag = IsLanguageTag(fields[4]) ? fields[4] : "ENG";
    shared.CurrencyTag = fields[5].empty() ? "EUR" : fields[5];
    shared.PrintFontName = IsTooShort(fields[6]) ? "Arial" : fields[6];
    shared.UserCompany = fields[7];
    shared.DateFormatCode = Trimmed(fields[25]);
    shared.LabelFontSize = Trimmed(fields[26]);
    if (shared.LabelFontSize.empty()) shared.LabelFontSize = "12";
    shared.PaperSize = fields[28];
}

}  // namespace

fs::path FindDataFolder(int mode, const NamedFolder& named) {
    fs::path folder;
    if (named) {
        folder = *named;
    } else {
        folder = FolderOfVariable("XDG_DATA_HOME");
        if (folder.empty()) {
            folder = FolderOfVariable("HOME");
            if (!folder.empty()) folder /= ".local/share";
        }
        if (folder.empty()) return CurrentFolder();
        folder /= kFolderName;
    }
    std::error_code error;
    if (mode == 2) fs::create_directories(folder, error);
    return folder;
}

bool DeliverDataSet(const fs::path& delivered, const fs::path& folder) {
    std::error_code error;
    if (fs::exists(folder, error) || !fs::is_directory(delivered, error)) return false;
    fs::create_directories(folder.parent_path(), error);
    std::string beside = folder.string() + ".XXXXXX";
    if (::mkdtemp(beside.data()) == nullptr) return false;
    fs::permissions(beside, fs::perms(0755), error);
    fs::copy(delivered, beside, fs::copy_options::recursive, error);
    // rename() would replace an empty folder that another start has made meanwhile, and nothing
    // else.
    if (!error) fs::rename(beside, folder, error);
    if (!error) return true;
    std::error_code ignored;
    fs::remove_all(beside, ignored);
    return false;
}

fs::path PrepareDataFolder(const NamedFolder& named, bool deliver_into_named) {
    fs::path folder = FindDataFolder(0, named);
    if (!named || deliver_into_named) DeliverDataSet(DeliveredDataSet(), folder);
    return folder;
}

fs::path DeliveredDataSet() {
    std::error_code error;
    const fs::path program = fs::read_symlink("/proc/self/exe", error);
    return program.parent_path().parent_path() / "share" / "zandrell";
}

std::optional<fs::path> ReadSuiteParameters(const NamedFolder& named, DataFiles& files,
                                            SharedValues& shared) {
    std::optional<fs::path> missing;
    files.SetDataFolder(WholePath(files.DataFolder()));
    const FileText file = files.OpenForInput("kparam.dat");
    std::array<std::string, kParameterFields + 1> fields;
    DelimitedReader reader(file.text);
    for (std::size_t i = 1; i <= kParameterFields; ++i) reader.ReadText(fields[i]);
    if (file.status == FileStatus::Ok) {
        missing = TakeFolders(fields, named, files, shared);
    } else {
        shared.ProjectFolder = CurrentFolder().string();
        shared.LogoFile = (files.DataFolder() / "zdsample.jpg").string();
    }
    TakeTexts(fields, shared);
    shared.HeaderStyle = WholeNumber(fields[12], 0);
    shared.SkinNumber = WholeNumber(fields[22], 0);
    shared.PaperOrientation = fields[29].empty() ? 1 : WholeNumber(fields[29], 1);
    shared.VersionText = kVersion;  // a stored version of another release is overruled
    shared.MainsFrequency = 50;
    return missing;
}

void LoadBranding(const DataFiles& files, SharedValues& shared) {
    shared.AppTitle = "Zandrell";
    const RecordFile file = files.OpenRandom("rechOpt.dat", kBrandingRecordLength);
    if (file.Status() != FileStatus::Ok || file.Empty()) return;
    const double offset = ToDouble(Trimmed(file.Record(kBrandingOffsetRecord)));
    std::string title;
    for (std::size_t number = kTitleFirstRecord; number <= kTitleLastRecord; ++number) {
        const std::string_view record = file.Record(number);
        if (Trimmed(record).empty()) continue;
        const int code = OemCharToAnsi(RoundToInteger(ToDouble(record) - offset).value_or(0));
        if (code >= ' ' && code <= 255) title += DecodeByte(static_cast<unsigned char>(code));
    }
    title = Trimmed(title);
    if (!title.empty()) shared.AppTitle = title;
}

}  // namespace zandrell
