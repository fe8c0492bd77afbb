#include "projects/working_state.h"

#include <algorithm>
#include <vector>

#include "base/delimited_text.h"
#include "base/number_text.h"

namespace zandrell {
namespace {

constexpr std::string_view kUsualCoilHumidity = "95";  // %

}  // namespace

void SetWorkingState(std::string_view text, const WorkingStateFields& state) {
    DelimitedReader reader(text);
    for (TextField* field : state.fields) {
        field->text.clear();
        reader.ReadText(field->text);
    }
    reader.ReadBoolean(state.steam->on);
    reader.ReadBoolean(state.water->on);
    // The two are a pair; a file of other hands may hold both.
    if (state.steam->on) state.water->on = false;
    TextField& coil = *state.coil_humidity;
    coil.text.clear();
    reader.ReadText(coil.text);
    if (ParsedNumber(coil.text) == 0) coil.text = kUsualCoilHumidity;
}

bool HoldsWorkingState(std::string_view text, const WorkingStateFields& state) {
    std::vector<TextField> texts(state.fields.size() + 1, TextField(""));
    OptionButton steam("", state.steam->on), water("", state.water->on);
    WorkingStateFields loaded{{}, &steam, &water, &texts.back()};
    for (std::size_t i = 0; i < loaded.fields.size(); ++i) loaded.fields[i] = &texts[i];
    SetWorkingState(text, loaded);
    return WorkingStateText(loaded) == WorkingStateText(state);
}

int UnreadableItems(const std::vector<std::string>& items) {
    constexpr std::size_t kOptions[] = {17, 18};
    const std::size_t read = std::min<std::size_t>(items.size(), kWorkingStateItems);
    int unreadable =
        read == kWorkingStateItems - 1 ? 0 : kWorkingStateItems - static_cast<int>(read);
    for (std::size_t i = 0; i < read; ++i) {
        if (i == kOptions[0] || i == kOptions[1]) continue;
        const bool blank = items[i].find_first_not_of(' ') == std::string::npos;
        const bool number = items[i].find_first_of("0123456789") != std::string::npos;
        unreadable += blank || number ? 0 : 1;
    }
    return unreadable;
}

std::string WorkingStateText(const WorkingStateFields& state) {
    DelimitedWriter writer;
    for (const TextField* field : state.fields) writer.Text(field->text).EndLine();
    writer.Boolean(state.steam->on).EndLine();
    writer.Boolean(state.water->on).EndLine();
    writer.Text(state.coil_humidity->text).EndLine();
    return writer.Result();
}

FileStatus ArbeitsfelderLaden(const DataFiles& files, std::string_view name,
                              const WorkingStateFields& state) {
    const FileText file = files.OpenForInput(name);
    if (file.status == FileStatus::Ok || file.status == FileStatus::Missing) {
        SetWorkingState(file.text, state);
    }
    return file.status;
}

FileStatus ArbeitsfelderSpeichern(const DataFiles& files, std::string_view name,
                                  const WorkingStateFields& state, std::string* reason) {
    return files.OpenForOutput(name, WorkingStateText(state), Durability::Flushed, reason);
}

}  // namespace zandrell
