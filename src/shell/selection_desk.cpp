#include "shell/selection_desk.h"

#include "printing/date_text.h"
#include "selection/data_sheet.h"
#include "shell/data_sheet_page.h"
#include "shell/main_captions.h"

namespace zandrell {

SelectionDesk::SelectionDesk(UserInterface& user, DataFiles& files, NamedFolder named)
    : window({files, shared, captions, user, selection}),
      setup(files, shared, captions, user, Picture_p_),
      help(files, shared, captions, user),
      user_(user),
      files_(files),
      named_folder_(std::move(named)) {
    window.host.open_print_setup = [this] { PrintSheet(); };
    window.host.open_documents = [this] { OpenHelp(); };
    window.host.date_text = [this] {
        FormatDate(0, shared);
        return shared.DateText;
    };
    setup.show_preview = [this] {
        if (device_ != nullptr) device_->Preview(ComposeSheet());
    };
}

void SelectionDesk::Load() {
    ReadSuiteParameters(named_folder_, files_, shared);
    LoadCaptions(files_, shared.LanguageTag, captions);
    LoadAirCoCaptions(files_, shared.LanguageTag, captions);
    LoadQVCaptions(files_, shared.LanguageTag, captions);
    LoadBranding(files_, shared);
    ApplySkin(shared, window);
    for (ModalForm* one : Windows()) ApplySkin(shared, *one);
}

void SelectionDesk::SetDevice(PrintDevice* device) {
    device_ = device;
    setup.device = device;
}

bool SelectionDesk::PrintToFile(const std::string& path) {
    if (device_ != nullptr) device_->PrintToFile(path);
    return device_ != nullptr;
}

void SelectionDesk::OpenHelp() {
    shared.DateText = TopicText(HelpTopic::SelectSeries, shared, captions);
    help.ShowHelp();
}

Sheet SelectionDesk::ComposeSheet() {
    const FileText file = files_.OpenForInput(kDataSheetFile);
    const std::string picture =
        selection.BildDatei.empty() ? "" : files_.Resolve(selection.BildDatei).string();
    return DataSheetPage({file.text, picture, Picture_p_.picture}, shared, captions);
}

void SelectionDesk::PrintSheet() {
    const std::string style = shared.DateFormatCode;
    const bool confirmed = setup.ShowPrintSetup() != 0;
    shared.DialogMode = 0;
    shared.print_setup_signal = PrintSetupSignal::None;
    if (!confirmed) return;
    // The sheet was written before: its date and that of the header are one.
    if (shared.DateFormatCode != style && !window.BT_file_create()) return;
    std::string error = "No printer";
    if (device_ != nullptr && device_->Print(ComposeSheet(), error)) return;
    user_.ShowMessage({shared.AppTitle, error, MessageIcon::Stop});
}

}  // namespace zandrell
