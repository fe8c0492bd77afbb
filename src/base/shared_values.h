#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/calendar.h"

namespace zandrell {

inline constexpr std::string_view CrLf = "\r\n";
inline constexpr std::string_view ColonSuffix = " :";
inline constexpr std::string_view kVersion = "10.11.2";

// Why the next activation of the main window is only an echo and reloads nothing: a dialog or a
// calculation is on its way, or a flow was just typed.
enum class DialogEcho { None = 0, Expected = 1, FlowTyped = 5 };

// Whether the print setup has just closed: the activation that follows reads nothing anew, and
// clears it.
enum class PrintSetupSignal { None = 0, Closed = 33 };

// How the options were left.
enum class OptionsSignal { None = 0, Taken = 77, Cancelled = 88 };

// The values that every part of one running program shares: the suite's settings, and the small
// integers by which windows tell each other what has happened. Owned by whoever starts the program.
struct SharedValues {
    // From kparam.dat, with the defaults that hold when it says nothing.
    std::string ProjectFolder;
    std::string LanguageTag = "ENG";
    std::string CurrencyTag = "EUR";
    std::string PrintFontName = "Arial";
    std::string UserCompany;
    int HeaderStyle = 0;
    int SkinNumber = 0;
    std::string LogoFile;
    std::string DateFormatCode;
    std::string LabelFontSize = "12";
    std::string PaperSize;
    int PaperOrientation = 1;
    bool prints_states = false;  // a second page with the states of the process
    std::string VersionText = std::string(kVersion);
    double MainsFrequency = 50;  // Hz

    std::string ModuleTag = "QV";
    std::string AppTitle = "Zandrell";

    std::string ProjectTitle;
    std::string ProjectRemark;
    std::string ProjectFileName;  // as the project dialog left it, also after a cancel
    std::string LastProjectFile;  // of the project in hand; empty: none
    std::string ProjectText;      // a text that a sibling module hands over and gets back
    std::string VltFileName;      // the set of values chosen last
    std::string ResultText;       // what a dialog gives back
    std::string HandOverTitle;    // what a sibling module adds to the window title
    std::string ProjektFeldDatei = "QV_ACT.dat";
    int ProjektArt = 0;
    double project_pressure_bar = 0;  // the pressure stored with a project of kind 111

    DialogEcho ZurueckVomDialog = DialogEcho::None;
    int DialogMode = 0;
    OptionsSignal OptionenSignal = OptionsSignal::None;
    PrintSetupSignal print_setup_signal = PrintSetupSignal::None;
    int HelpClosed = 0;                    // 1: the help box was saved or closed
    std::string DateText;                  // a date on its way, or the topic for the help box
    std::optional<CalendarDay> clock_day;  // the day that the program sees; empty: today

    double AuswahlLeistung = 0;   // kW, noted for a selection dialog
    double AuswahlLuftstrom = 0;  // m3/h, the same
};

}  // namespace zandrell
