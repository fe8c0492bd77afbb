#include "projects/seen_files.h"

#include "base/text_encoding.h"
#include "projects/project_words.h"

namespace zandrell {

std::string SeenFiles::KeyOf(std::string_view name) const {
    const std::filesystem::path path = context_.files.Resolve(name);
    std::error_code error;
    const auto whole = std::filesystem::weakly_canonical(path, error);
    return error ? path.string() : whole.string();
}

FileText SeenFiles::Read(std::string_view name) {
    FileText file = context_.files.OpenForInput(name);
    texts_[KeyOf(name)] = file.text;
    return file;
}

bool SeenFiles::MayReplace(const std::string& key, const FileText& present, Target target) const {
    if (present.status == FileStatus::Missing) return true;
    const std::string name = std::filesystem::path(key).filename().string();
    if (target == Target::Other) return Ask(context_, ReplaceProjectQuestion(context_, name));
    const auto seen = texts_.find(key);
    const bool changed =
        seen != texts_.end() && present.status == FileStatus::Ok && present.text != seen->second;
    return !changed || Ask(context_, ChangedElsewhereQuestion(context_, name));
}

bool SeenFiles::MayRemove(std::string_view name) const {
    return MayReplace(KeyOf(name), context_.files.OpenForInput(name), Target::Own);
}

WriteResult SeenFiles::Write(std::string_view name, const std::string& wanted, Target target) {
    const std::string key = KeyOf(name);
    const std::string text = DecodeText(EncodeText(wanted));  // as it will read back
    const FileText present = context_.files.OpenForInput(name);
    if (present.status == FileStatus::Ok && present.text == text) {
        texts_[key] = text;
        return WriteResult::Done;
    }
    if (!MayReplace(key, present, target)) return WriteResult::Declined;
    std::string reason;
    if (context_.files.OpenForOutput(name, text, Durability::Flushed, &reason) != FileStatus::Ok) {
        Complain(context_, SavingFailedText(context_, key, reason));
        return WriteResult::Failed;
    }
    texts_[key] = text;
    return WriteResult::Done;
}

}  // namespace zandrell
