#include "projects/project_file.h"

#include <algorithm>

#include "base/delimited_text.h"
#include "base/text_encoding.h"
#include "base/text_helpers.h"

namespace zandrell {
namespace {

constexpr std::string_view kSavedExtension = ".PRJ";
constexpr std::size_t kExtensionLength = 4;
// What the systems of the suite's users keep for themselves in names.
constexpr std::string_view kForbidden = "/\\:*?\"<>|";

ProjectHeader ReadHeader(DelimitedReader& reader) {
    ProjectHeader header;
    for (std::string* item : {&header.title, &header.remark, &header.third, &header.tag}) {
        reader.ReadText(*item);
    }
    return header;
}

std::string CleanedTitle(std::string_view title) {
    std::string cleaned(title);
    return MakeFileNameSafe(0, cleaned);
}

// The text without its last characters; a character of several bytes is cut as one.
std::string WithoutLast(std::string text, std::size_t characters) {
    const auto continues = [](char byte) {
        return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
    };
    for (std::size_t i = 0; i < characters && !text.empty(); ++i) {
        while (text.size() > 1 && continues(text.back())) text.pop_back();
        text.pop_back();
    }
    return text;
}

bool EndsWith(std::string_view name, std::string_view extension) {
    return name.size() >= extension.size() &&
           EqualIgnoringCase(name.substr(name.size() - extension.size()), extension);
}

}  // namespace

ProjectHeader ReadProjectHeader(std::string_view text) {
    DelimitedReader reader(text);
    return ReadHeader(reader);
}

ProjectFile ReadProject(std::string_view text) {
    DelimitedReader reader(text);
    ProjectFile project;
    project.header = ReadHeader(reader);
    for (std::string item; reader.ReadText(item);) project.items.push_back(item);
    return project;
}

std::string ItemsText(const std::vector<std::string>& items) {
    DelimitedWriter writer;
    for (const std::string& item : items) writer.Text(item).EndLine();
    return writer.Result();
}

std::string ProjectText(const ProjectHeader& header, std::string_view working_state) {
    DelimitedWriter writer;
    writer.Text(header.title).Text(header.remark).Text(header.third).Text(header.tag).EndLine();
    DelimitedReader reader(working_state);
    for (std::string item; reader.ReadText(item);) writer.Text(item).EndLine();
    return writer.Result();
}

std::string WorkingFileOf(std::string_view tag) {
    const std::string upper = UpperCase(tag);
    if (upper == "QV") return "QV_ACT.dat";
    if (upper == "BV") return "BravL.dat";
    if (upper == "TV") return "TorvL.dat";
    return {};
}

bool HasProjectExtension(std::string_view name) { return EndsWith(name, kProjectExtension); }

bool IsBareExtension(std::string_view name) {
    const std::string trimmed = Trimmed(name);
    return trimmed.empty() || EqualIgnoringCase(trimmed, kProjectExtension);
}

std::string CompletedName(std::string_view name, std::string_view title,
                          std::string_view extension) {
    std::string trimmed = Trimmed(name);
    if (trimmed.empty() || EqualIgnoringCase(trimmed, extension)) {
        return CleanedTitle(title) + std::string(extension);
    }
    if (EndsWith(trimmed, extension)) return trimmed;
    return trimmed.substr(0, trimmed.find('.')) + std::string(extension);
}

std::string SavedName(std::string_view name, std::string_view title) {
    const std::string trimmed = Trimmed(name);
    if (IsBareExtension(trimmed)) return CleanedTitle(title) + std::string(kProjectExtension);
    return WithoutLast(trimmed, kExtensionLength) + std::string(kSavedExtension);
}

bool IsPlainFileName(std::string_view name) {
    constexpr std::size_t kLongestName = 255;  // bytes
    const bool dots = name == "." || name == "..";
    return !dots && !name.empty() && name.size() <= kLongestName &&
           std::none_of(name.begin(), name.end(), [](char c) {
               return static_cast<unsigned char>(c) < ' ' ||
                      kForbidden.find(c) != std::string_view::npos;
           });
}

}  // namespace zandrell
