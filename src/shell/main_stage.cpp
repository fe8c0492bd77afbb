#include "shell/main_stage.h"

#include "base/text_helpers.h"
#include "canvas/canvas.h"
#include "shell/form_dump.h"
#include "shell/help_in_hand.h"

namespace zandrell {

std::vector<ModalForm*> MainStage::Windows() { return WindowsOf(form_); }

Json MainStage::DumpAll() { return DumpForm(form_); }

Json MainStage::Dump(std::string_view name) { return DumpOne(form_, name); }

bool MainStage::PrintToFile(const std::string& path) { return form_.printing.PrintToFile(path); }

void MainStage::OpenHelp(std::string_view window) { form_.OpenHelp(TopicInHand(form_, window)); }

std::optional<bool> MainStage::RunAct(const ScriptLine& line, const ModalForm* open,
                                      std::string& error) {
    const std::string& act = line.words[0];
    const bool own =
        act == "window" || act == "activate" || act == "close" || act == "pointer" || act == "open";
    if (!own) return std::nullopt;
    if (form_.ended) return true;
    if (open != nullptr) return Refused(error, open->form.Name() + " is open");
    if (act == "open") return OpenWindow(line, error);
    return act == "pointer" ? RunPointer(line.words, error) : RunWindowAct(line, error);
}

bool MainStage::RunWindowAct(const ScriptLine& line, std::string& error) {
    const auto& words = line.words;
    if (words[0] == "activate") {
        form_.Activate();
    } else if (words[0] == "close") {
        form_.ende_qv();
    } else {
        int width = 0, height = 0;
        const bool sized = words.size() == 3 && ReadWhole(words[1], width) &&
                           ReadWhole(words[2], height) && width > 0 && height > 0 &&
                           width <= kLargestPictureSide && height <= kLargestPictureSide;
        if (!sized) return Refused(error, "window needs a width and a height in pixels");
        form_.Resize(width, height);
    }
    return true;
}

// As another module of the suite would open a window.
bool MainStage::OpenWindow(const ScriptLine& line, std::string& error) {
    const auto& words = line.words;
    const std::string window = words.size() > 1 ? words[1] : "";
    if (window == "Hilfebox") {
        form_.shared.DateText = line.Value();
        form_.help.ShowHelp();
        return true;
    }
    int mode = 0;
    if (window != "ProjLaden") return Refused(error, "no such window");
    if (words.size() != 3 || !ReadWhole(words[2], mode)) {
        return Refused(error, "open ProjLaden needs its DialogMode");
    }
    form_.Projects().OpenDialog(mode);
    return true;
}

bool MainStage::RunPointer(const std::vector<std::string>& words, std::string& error) {
    CanvasPoint place;
    const bool placed =
        words.size() >= 4 && ReadNumber(words[2], place.x) && ReadNumber(words[3], place.y);
    if (!placed) return Refused(error, "pointer needs move, press or release and a place");
    if (words.size() > 4 && words[4] != "left" && words[4] != "right") {
        return Refused(error, "unknown pointer button: " + Excerpt(words[4]));
    }
    const bool right = words.size() > 4 && words[4] == "right";
    const PointerButton button = right ? PointerButton::Right : PointerButton::Left;
    if (words[1] == "move") {
        form_.PointerMove(place);
    } else if (words[1] == "press") {
        form_.PointerPress(button, place);
    } else if (words[1] == "release") {
        form_.PointerRelease(button);
    } else {
        return Refused(error, "unknown pointer act: " + Excerpt(words[1]));
    }
    return true;
}

}  // namespace zandrell
