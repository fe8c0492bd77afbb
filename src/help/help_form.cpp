#include "help/help_form.h"

#include "help/help_records.h"

namespace zandrell {
namespace {

constexpr int kLabelSize = 12;  // points
// Names that nobody can own, until there are such pages.
constexpr std::string_view kTutorialPages = "https://www.zandrell.example/tutorials";
constexpr std::string_view kTutorialChannel = "https://video.zandrell.example/tutorials";

}  // namespace

HelpForm::HelpForm(DataFiles& files, SharedValues& shared, const Captions& captions,
                   UserInterface& user)
    : ModalForm("Hilfebox"), files_(files), shared_(shared), captions_(captions), user_(user) {
    cancel_control = Command3D1.name;
    default_control = Command3D1.name;
    form.Add({&InfoText, &Label1, &Label2, &Frame3d1, &Command3D1, &Command3D2, &Command3D2_l});
    acts.Add(Command3D1.name, ActKind::Click, [this] { Close(); });
    for (const Button* button : {&Command3D2, &Command3D2_l}) {
        acts.Add(button->name, ActKind::Click, [this] { SaveTopic(place_.first, place_.count); });
    }
}

void HelpForm::SetCaptions(const std::string& topic) {
    const std::string& help = captions_[Caption::Help];
    Label1.text =
        "Online tutorial download under:" + std::string(CrLf) + std::string(kTutorialPages);
    Label2.text = "Zandrell tutorial channel:" + std::string(CrLf) + std::string(kTutorialChannel);
    title = shared_.AppTitle + " " + help + " " + topic;
    Command3D1.text = "O.K.";
    Command3D2_l.text = std::string(6, ' ') + captions_[Caption::Save];
    Command3D2.tool_tip = Command3D2_l.tool_tip =
        captions_[Caption::Save] + " " + shared_.AppTitle + " " + help;
    const bool skinned = shared_.SkinNumber >= 1 && shared_.SkinNumber <= 5;
    Frame3d1.picture = skinned ? "ZD_Back01.jpg" : "";
    label_font_size = kLabelSize;
}

void HelpForm::ShowHelp() {
    const std::string topic = shared_.DateText;
    closed = false;
    shared_.HelpClosed = 0;
    SetCaptions(topic);
    place_ = FindTopic(topic, shared_, captions_);
    ShowTopic(place_.first, place_.count, 0, "", topic);
    user_.ShowModal(*this);
}

std::string HelpForm::FileName() const { return std::string(place_.file) + shared_.LanguageTag; }

void HelpForm::ShowTopic(int first, int count, int withPicture, const std::string& pictureName,
                         const std::string& topic) {
    InfoText.text.clear();
    if (count > 0) {
        InfoText.text =
            HelpText(files_.OpenRandom(FileName(), kHelpRecordLength).Bytes(), first, count);
    }
    if (withPicture == 1) StartViewer(files_, viewer, pictureName, topic, InfoText.text);
}

void HelpForm::SaveTopic(int first, int count) {
    if (count <= 0) return;
    const RecordFile file = files_.OpenRandom(FileName(), kHelpRecordLength);
    FileStatus status = file.Status();
    // A missing file is made; one that is there and cannot be read is not replaced.
    if (status == FileStatus::Ok || status == FileStatus::Missing) {
        status = files_.ReplaceBytes(
            FileName(), WithHelpText(std::string(file.Bytes()), first, count, InfoText.text));
    }
    if (status != FileStatus::Ok) {
        user_.ShowMessage({shared_.AppTitle,
                           "Can not write file:   - " + files_.Resolve(FileName()).string() + " - ",
                           MessageIcon::Stop});
        return;
    }
    shared_.HelpClosed = 1;
}

void HelpForm::Close() {
    closed = true;
    shared_.HelpClosed = 1;
}

}  // namespace zandrell
