#include "printing/chart_printing.h"

#include "printing/page_printer.h"
#include "printing/state_page.h"

namespace zandrell {
namespace {

constexpr int kChartFontSize = 8;

}  // namespace

ChartPrinting::ChartPrinting(const PrintingContext& context)
    : setup(context.files, context.shared, context.captions, context.user,
            context.chart.controls.Picture_p),
      context_(context) {
    setup.show_preview = [this] { ShowPreview(); };
}

void ChartPrinting::SetDevice(PrintDevice* device) {
    device_ = device;
    setup.device = device;
}

bool ChartPrinting::PrintToFile(const std::string& path) {
    if (device_ != nullptr) device_->PrintToFile(path);
    return device_ != nullptr;
}

void ChartPrinting::Druck_start() {
    context_.chart.printing = true;
    context_.shared.DialogMode = setup.ShowPrintSetup();
    const bool confirmed = context_.shared.DialogMode != 0;
    if (confirmed) Print();
    context_.chart.printing = false;
    if (confirmed && after_printing) after_printing();
    if (!confirmed) context_.shared.print_setup_signal = PrintSetupSignal::None;
    context_.shared.DialogMode = 0;
}

void ChartPrinting::Print() {
    if (!MayPrint()) return;
    const Sheet sheet = ComposeSheet();
    std::string error = "No printer";
    if (device_ != nullptr && device_->Print(sheet, error)) return;
    context_.user.ShowMessage({context_.shared.AppTitle, error, MessageIcon::Stop});
}

void ChartPrinting::OpenPrinterDialog() {
    setup.printCMsetup();
    context_.shared.ZurueckVomDialog = DialogEcho::Expected;
}

void ChartPrinting::ShowPreview() {
    if (device_ != nullptr && MayPrint()) device_->Preview(ComposeSheet());
}

void ChartPrinting::TakeProjectTexts() {
    context_.shared.ProjectTitle = context_.Proj_T.text;
    context_.shared.ProjectRemark = context_.Schr_T.text;
}

Sheet ChartPrinting::ComposeSheet() {
    TakeProjectTexts();
    const PrintOutSource source{context_.captions, context_.chart.settings, context_.overlay,
                                context_.processes};
    Sheet sheet;
    sheet.paper = context_.shared.PaperSize;
    sheet.title = PageHeading(source, context_.shared);
    PagePrinter(sheet, context_.shared, context_.captions,
                context_.chart.controls.Picture_p.picture)
        .PrintPageHeader(sheet.title, "1", 0, 0, context_.shared.PaperOrientation);

    // Paper is always light, whatever the screen shows.
    sheet.chart.Clear(kWhite, kBlack);
    sheet.chart.SetFontSize(kChartFontSize);
    sheet.chart_scale = ChartPageOf(context_.chart.settings);
    context_.chart.printer = &sheet.chart;
    double pressure = 0;
    context_.chart.DiagrammZeichnen(ChartTask::PaintPrinter, 0, 0, pressure);
    context_.chart.printer = nullptr;

    sheet.SetScale(sheet.chart_scale);
    PrintMarks(context_.overlay, sheet);
    PrintFigures(source, sheet);
    if (context_.shared.prints_states) AddStates(sheet);
    return sheet;
}

// Without a process there are no states, and no page for them.
void ChartPrinting::AddStates(Sheet& sheet) {
    const StateList list = ListStates(context_.processes);
    if (list.rows.empty()) return;
    Sheet& page = sheet.further.emplace_back();
    page.paper = sheet.paper;
    page.title = sheet.title;
    PagePrinter(page, context_.shared, context_.captions, context_.chart.controls.Picture_p.picture)
        .PrintPageHeader(page.title, "2", 0, 0, context_.shared.PaperOrientation);
    PrintStates(list, context_.captions[Caption::StateTable], page);
}

}  // namespace zandrell
