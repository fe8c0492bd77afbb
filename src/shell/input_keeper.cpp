#include "shell/input_keeper.h"

#include "base/file_names.h"

namespace zandrell {
namespace {}  // namespace

WorkingStateFields InputKeeper::Fields() {
    auto& plant = processes_.plant;
    auto& point = processes_.point;
    return {
        {&plant.tKA, &plant.Taus, &plant.TZuluft, &plant.tabLuft, &plant.vhAnlage, &plant.aussenAnt,
         &plant.PHIZuluft, &plant.PHIAbluft, &plant.PhiAussen, &point.LuftM1, &point.LuftM2,
         &point.Temp1, &point.Temp2, &point.relF1, &point.relF2, &plant.dtVent1, &plant.dtVent2},
        &plant.Option3D3,
        &plant.Option3D4,
        &plant.phiKanal};
}

void InputKeeper::LoadAtStart() {
    if (!loaded_) Load();
}

void InputKeeper::Load() {
    loaded_ = true;
    const FileStatus status = ArbeitsfelderLaden(files_, kWorkingStateFile, Fields());
    unread_ = status == FileStatus::Unreadable || status == FileStatus::Malformed;
}

bool InputKeeper::Save() {
    std::string reason;
    const FileStatus status = ArbeitsfelderSpeichern(files_, kWorkingStateFile, Fields(), &reason);
    if (status != FileStatus::Ok) return TellUnsaved("Can not write file:   - ", reason);
    unread_ = false;
    return true;
}

bool InputKeeper::SaveAtEnd() {
    if (!unread_) return Save();
    return TellUnsaved("Can not read file:   - ", files_.OpenForInput(kWorkingStateFile).reason);
}

bool InputKeeper::TellUnsaved(const std::string& what, const std::string& reason) {
    std::string text = what + files_.Resolve(kWorkingStateFile).string() + " - ";
    if (!reason.empty()) text += ": " + reason;
    user_.ShowMessage({shared_.AppTitle, text, MessageIcon::Stop});
    return false;
}

}  // namespace zandrell
