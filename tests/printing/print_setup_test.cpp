#include "printing/print_setup_form.h"
#include "printing_session.h"

namespace zandrell {
namespace {

struct SetupSession : PrintingSession {
    PrintSetupForm& form = printing.setup;

    // Opens the window, lets a test act in it and presses O.K. The answer is that of the window.
    int Show(const std::function<void()>& acts = [] {}) {
        user.in_window = [acts](ModalForm&) { acts(); };
        return form.ShowPrintSetup();
    }
};

TEST(PrintSetup, ShowsWhatIsInForce) {
    SetupSession setup;
    setup.shared.PaperSize = "";
    setup.shared.PaperOrientation = 2;
    setup.shared.PrintFontName = "Courier";
    setup.shared.LogoFile = (setup.folder / "zdsample.jpg").string();
    setup.Show([&] {
        EXPECT_EQ(setup.form.title, "Zandrell 10.11.2 - printer settings");
        EXPECT_EQ(setup.form.Size_combo.text, "A4");
        EXPECT_EQ(setup.form.Size_combo.items, (std::vector<std::string>{"A4", "A3", "A2"}));
        EXPECT_FALSE(setup.form.Option1.on);
        EXPECT_TRUE(setup.form.Option2.on);
        EXPECT_EQ(setup.form.fontlist.items, setup.device.fonts);
        EXPECT_EQ(setup.form.fontlist.text, "Courier");
        EXPECT_EQ(setup.form.sample_font, "Courier");
        EXPECT_EQ(setup.form.Label3.text, "Logo Graphic: *.jpg,  Size  ~260 x 80 Pixel");
        EXPECT_EQ(setup.form.Command1.tool_tip, "select : Logo Graphic *.jpg");
        EXPECT_EQ(setup.form.Label4.text, " 100 %");
        EXPECT_EQ(setup.form.Label5.text, "paper");
        EXPECT_EQ(setup.form.Label6.text, "date");
        EXPECT_EQ(setup.form.Text1.text, setup.shared.LogoFile);
        EXPECT_EQ(setup.form.Picture1.picture, setup.shared.LogoFile);
        for (const char* name : {"Slider1", "Slider2", "Label4", "Line7", "Combo1", "fontlist2",
                                 "Panel3D1", "Pwidth"}) {
            EXPECT_FALSE(setup.form.form.Find(name)->visible) << name;
        }
    });
    EXPECT_EQ(setup.shared.PaperSize, "A4");
    EXPECT_EQ(setup.chart.controls.Picture_p.picture, setup.shared.LogoFile);
}

TEST(PrintSetup, DateListFollowsTheCode) {
    using Texts = std::vector<std::string>;
    const std::vector<std::pair<const char*, Texts>> cases = {
        {"", {"21.11.2026", "11-21-2026", "11-21-2026", "11/21/2026", "21/11/2026"}},
        {"1", {"11-21-2026", "11-21-2026", "11-21-2026", "11/21/2026", "21/11/2026"}},
        // The code is tested behind style 2 and wins there.
        {"3", {"11/21/2026", "11-21-2026", "11/21/2026", "11/21/2026", "21/11/2026"}},
        {"4", {"11/21/2026", "11-21-2026", "11/21/2026", "11/21/2026", "21/11/2026"}},
    };
    for (const auto& offered : cases) {
        SetupSession setup;
        setup.shared.DateFormatCode = offered.first;
        setup.Show([&] {
            EXPECT_EQ(setup.form.Date_Combo.items, offered.second) << offered.first;
            EXPECT_EQ(setup.form.Date_Combo.text, offered.second[0]) << offered.first;
        });
    }
}

TEST(PrintSetup, OkTakesTheDateStyleByItsText) {
    struct Case {
        const char* day;
        const char* text;
        const char* code;
    };
    const Case cases[] = {
        {"2026-11-21", "21/11/2026", "4"},   {"2026-11-21", "11/21/2026", "3"},
        {"2026-11-21", " 11-21-2026 ", "2"}, {"2026-11-21", "21.11.2026", ""},
        {"2026-11-21", "1 May", ""},         {"2026-11-21", "", ""},
        {"2026-11-11", "11/11/2026", "4"},  // day and month equal: style 4 is compared first
    };
    for (const Case& c : cases) {
        SetupSession setup;
        setup.shared.clock_day = ReadDay(c.day);
        EXPECT_EQ(setup.Show([&] { setup.form.UserSetText("Date_Combo", c.text); }), 1);
        EXPECT_EQ(setup.shared.DateFormatCode, c.code) << c.text;
    }
}

TEST(PrintSetup, OkTakesPaperAndOrientation) {
    SetupSession setup;
    EXPECT_EQ(setup.Show([&] {
        setup.form.UserPick("Size_combo", "A2");
        setup.form.UserChoose("Option2");
        EXPECT_TRUE(setup.form.Landscape.visible);
    }),
              1);
    EXPECT_EQ(setup.shared.PaperSize, "A2");
    EXPECT_EQ(setup.shared.PaperOrientation, 2);
    EXPECT_EQ(setup.shared.print_setup_signal, PrintSetupSignal::Closed);
    EXPECT_EQ(setup.user.dialog_titles,
              (std::vector<std::string>{"Zandrell 10.11.2 - printer settings"}));
    // A paper that the window does not offer is none.
    setup.Show([&] { setup.form.UserSetText("Size_combo", "Letter"); });
    EXPECT_EQ(setup.shared.PaperSize, "A2");
}

TEST(PrintSetup, CancelKeepsPaperAndSaysSo) {
    for (const bool by_printer_dialog : {false, true}) {
        SetupSession setup;
        setup.user.dialog_confirmed = false;
        setup.shared.DialogMode = 5;
        EXPECT_EQ(setup.Show([&] {
            setup.form.UserPick("Size_combo", "A3");
            setup.form.UserChoose("Option2");
            if (!by_printer_dialog) setup.form.UserClick("Abbutt_l");
        }),
                  0);
        EXPECT_EQ(setup.shared.PaperSize, "A4");
        EXPECT_EQ(setup.shared.PaperOrientation, 1);
        EXPECT_EQ(setup.user.dialog_titles.size(), by_printer_dialog ? 1U : 0U);
    }
}

TEST(PrintSetup, FontsAndSample) {
    SetupSession setup;
    setup.Show([&] {
        setup.form.UserPick("fontlist", "Times");
        setup.form.UserSetText("Font_S", "14");
        EXPECT_EQ(setup.form.sample_size, 14);
        for (const char* bad : {"", "0", "-3", "1e9", "big"}) {
            setup.form.UserSetText("Font_S", bad);
            EXPECT_EQ(setup.form.sample_size, 14) << bad;
        }
    });
    EXPECT_EQ(setup.shared.PrintFontName, "Times");
    EXPECT_EQ(setup.form.sample_font, "Times");
    setup.shared.PrintFontName = "Unknown";  // the former font stays
    setup.Show();
    EXPECT_EQ(setup.form.sample_font, "Times");
}

TEST(PrintSetup, LogoIsPickedInTheProjectDialog) {
    SetupSession setup;
    const std::string logo = (setup.folder / "zdsample.jpg").string();
    setup.folder.Write("broken.jpg", "no picture");
    std::vector<int> modes;
    std::string choice;
    setup.form.choose_logo = [&] {
        modes.push_back(setup.shared.DialogMode);
        if (!choice.empty()) setup.shared.LogoFile = choice;
    };
    setup.shared.LogoFile = "";
    setup.Show([&] {
        choice = logo;
        setup.form.UserClick("Command1");
        EXPECT_EQ(setup.form.Text1.text, logo);
        for (const char* bad : {"broken.jpg", "missing.jpg", "captions", "/dev/null"}) {
            choice = bad;
            setup.form.UserClick("Command1");
            EXPECT_EQ(setup.form.Text1.text, bad);
            EXPECT_EQ(setup.form.Picture1.picture, logo) << "stays as it was: " << bad;
        }
    });
    EXPECT_EQ(modes, std::vector<int>(5, 21));
    EXPECT_EQ(setup.chart.controls.Picture_p.picture, logo);
}

TEST(PrintSetup, PrinterInformation) {
    SetupSession setup;
    setup.Show([&] {
        setup.form.UserPick("Size_combo", "A3");
        setup.form.UserClick("prevButt");
        EXPECT_TRUE(setup.form.Panel3D1.visible);
        EXPECT_EQ(setup.form.Pwidth.text, "Printer Width =  297 mm");
        EXPECT_EQ(setup.form.Pheight.text, "Printer Height =  420 mm");
        EXPECT_EQ(setup.form.Swidth.text, "Screen Width =  1920 px");
        EXPECT_EQ(setup.form.Sheight.text, "Screen Height =  1080 px");
        setup.form.UserClick("Command3D1");
        EXPECT_FALSE(setup.form.Panel3D1.visible);
        EXPECT_FALSE(setup.form.Pwidth.visible);
    });
}

TEST(PrintSetup, ControlsOfTheOtherModule) {
    SetupSession setup;
    setup.shared.ModuleTag = "TARN";
    const int mode = setup.Show([&] {
        EXPECT_TRUE(setup.form.Slider1.visible);
        EXPECT_TRUE(setup.form.Combo1.visible);
        EXPECT_EQ(setup.form.fontlist2.items, setup.device.fonts);
        EXPECT_FALSE(setup.form.fontlist.visible);
        setup.form.UserScroll("Slider1", 140);
        EXPECT_EQ(setup.form.Label4.text, " 140 %");
        setup.form.UserChoose("Option2");
    });
    EXPECT_EQ(mode, 2);
}

}  // namespace
}  // namespace zandrell
