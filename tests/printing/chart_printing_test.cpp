#include "printing/chart_printing.h"

#include "printing_session.h"

namespace zandrell {
namespace {

TEST(Printing, OnePageWithTheProjectOfTheFields) {
    PrintingSession session;
    session.Proj_T.text = "Halle 7";
    session.Schr_T.text = "Angebot";
    session.RunPlant();
    session.user.in_window = [&](ModalForm& window) {
        EXPECT_TRUE(session.chart.printing) << "the screen is not painted meanwhile";
        window.UserPick("Size_combo", "A3");
        window.UserChoose("Option2");
    };
    session.printing.Druck_start();
    ASSERT_EQ(session.device.printed.size(), 1U);
    const Sheet& sheet = session.device.printed[0];
    EXPECT_EQ(sheet.paper, "A3");
    EXPECT_TRUE(sheet.landscape);
    EXPECT_EQ(TextAt(sheet, {0, 0, 420, 297}, 0.041 * 420, 0.037 * 297), "project :Halle 7");
    EXPECT_EQ(session.shared.ProjectTitle, "Halle 7");
    EXPECT_EQ(session.shared.ProjectRemark, "Angebot");
    EXPECT_FALSE(session.chart.printing);
    EXPECT_EQ(session.repeats, 1);
    EXPECT_EQ(session.shared.DialogMode, 0);
    EXPECT_EQ(session.shared.print_setup_signal, PrintSetupSignal::Closed);
    EXPECT_TRUE(session.user.messages.empty());
}

TEST(Printing, ACancelledSetupLeavesEverythingAsItWas) {
    PrintingSession session;
    session.Proj_T.text = "typed";
    session.shared.ProjectTitle = "before";
    const int revision = session.chart.picture.Revision();
    session.user.in_window = [](ModalForm& window) { window.UserClick("Abbutt"); };
    session.printing.Druck_start();
    EXPECT_TRUE(session.device.printed.empty());
    EXPECT_EQ(session.shared.ProjectTitle, "before");
    EXPECT_EQ(session.repeats, 0);
    EXPECT_FALSE(session.chart.printing);
    EXPECT_EQ(session.chart.picture.Revision(), revision);
    EXPECT_EQ(session.shared.print_setup_signal, PrintSetupSignal::None);
}

TEST(Printing, APrinterThatFailsSaysWhy) {
    PrintingSession session;
    session.device.refusal = "/nowhere/sheet.pdf: no such folder";
    session.printing.Druck_start();
    ASSERT_EQ(session.user.messages.size(), 1U);
    EXPECT_EQ(session.user.messages[0].text, session.device.refusal);
    EXPECT_EQ(session.user.messages[0].icon, MessageIcon::Stop);
    EXPECT_FALSE(session.chart.printing);
    EXPECT_EQ(session.repeats, 1);
    session.printing.SetDevice(nullptr);
    session.printing.Druck_start();
    EXPECT_EQ(session.user.messages.size(), 2U);
}

TEST(Printing, ThePreviewShowsWhatOkWouldPrintAndKeepsNothing) {
    PrintingSession session;
    session.user.in_window = [&](ModalForm& window) {
        window.UserPick("Size_combo", "A2");
        window.UserChoose("Option2");
        window.UserSetText("Date_Combo", "11/21/2026");
        window.UserClick("viewButt");
        EXPECT_EQ(session.shared.PaperSize, "A4");
        EXPECT_EQ(session.shared.PaperOrientation, 1);
        EXPECT_EQ(session.shared.DateFormatCode, "");
    };
    session.printing.Druck_start();
    ASSERT_EQ(session.device.previewed.size(), 1U);
    ASSERT_EQ(session.device.printed.size(), 1U);
    const Sheet& seen = session.device.previewed[0];
    const Sheet& printed = session.device.printed[0];
    EXPECT_EQ(seen.paper, printed.paper);
    EXPECT_TRUE(seen.landscape);
    ASSERT_EQ(seen.Items().size(), printed.Items().size());
    for (std::size_t i = 0; i < seen.Items().size(); ++i) {
        EXPECT_EQ(seen.Items()[i].text, printed.Items()[i].text);
        EXPECT_DOUBLE_EQ(seen.Items()[i].x1, printed.Items()[i].x1);
    }
    EXPECT_EQ(seen.chart.Operations().size(), printed.chart.Operations().size());
}

TEST(Printing, ThePrinterDialogAlone) {
    PrintingSession session;
    session.printing.OpenPrinterDialog();
    EXPECT_EQ(session.user.dialog_titles.size(), 1U);
    EXPECT_EQ(session.shared.ZurueckVomDialog, DialogEcho::Expected);
    EXPECT_TRUE(session.device.printed.empty());
}

}  // namespace
}  // namespace zandrell
