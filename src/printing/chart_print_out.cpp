#include "printing/chart_print_out.h"

#include <array>
#include <initializer_list>

#include "base/number_text.h"
#include "base/unit_texts.h"

namespace zandrell {
namespace {

constexpr int kMarkFontSize = 10, kProcessLineWidth = 6;
constexpr double kLeft = 50, kPlantRight = 1000, kState1 = 690, kState2 = 1340;
constexpr double kLine = 20, kFirstLine = 600, kGap = 10;
constexpr double kPlantShift = 20;  // the plant's block starts with two lines of flows

// Every figure of the two states stands behind the unit of a flow, temperatures too: these are the
// words of the page, and this is meant.
constexpr std::string_view kFlowUnit = " /[m³/h]: ";

struct Column {
    double x, room_right;
};

class FigurePrinter {
  public:
    FigurePrinter(Sheet& sheet, Column column, double y) : sheet_(sheet), column_(column), y_(y) {}

    void Print(const std::string& text) {
        sheet_.Text(column_.x, y_, text, column_.room_right, TextFit::Shrink);
        y_ += kLine;
    }

  private:
    Sheet& sheet_;
    Column column_;
    double y_;
};

std::string FlowLine(std::initializer_list<std::string> words, const std::string& figure) {
    std::string text;
    for (const auto& word : words) text += (text.empty() ? "" : " ") + word;
    return text + std::string(kFlowUnit) + figure;
}

std::string PowerUnit() { return " /[" + std::string(UnitKW) + "] :"; }

bool HasTwoStates(Calculation mode) { return mode == Calculation::Capacity || IsTool(mode); }

bool IsExact(const PrintOutSource& source) {
    return source.settings.convention == Convention::Exact;
}

// Under the suite's convention a page has the loads of whatever ran last.
bool PrintsLoads(const PrintOutSource& source) {
    if (!IsExact(source)) return true;
    const Calculation mode = source.processes.Rechenmodus;
    return (mode == Calculation::Plant || HasTwoStates(mode)) && !source.processes.HasStaleLoads();
}

// The suite's plant prints the condensate of whatever ran before; an exact one its coil's, if the
// air goes over it.
bool PrintsCondensate(const PrintOutSource& source) {
    return !IsExact(source) || source.processes.Rechenmodus != Calculation::Plant ||
           source.processes.plant.AnlageZweig == 0;
}

void PrintState(Sheet& sheet, const Captions& words, Column column, const std::string& number,
                const std::array<const Control*, 4>& figures) {
    constexpr std::array<Caption, 4> kWords = {Caption::Temperature, Caption::RelativeHumidity,
                                               Caption::HumidityRatio, Caption::Enthalpy};
    FigurePrinter printer(sheet, column, kFirstLine);
    for (std::size_t i = 0; i < kWords.size(); ++i) {
        printer.Print(FlowLine({words[kWords[i]], number}, figures[i]->text));
    }
}

double RightEdge(const PrintOutSource& source) { return ChartPageOf(source.settings).right - kGap; }

void PrintTwoStates(const PrintOutSource& source, Sheet& sheet) {
    const auto& p = source.processes.point;
    PrintState(sheet, source.captions, {kState1, kState2 - kGap}, "1",
               {&p.Temp1, &p.relF1, &p.absF1, &p.enth1});
    PrintState(sheet, source.captions, {kState2, RightEdge(source)}, "2",
               {&p.Temp2, &p.relF2, &p.absF2, &p.enth2});
}

void PrintPlantFlows(const PrintOutSource& source, Sheet& sheet, Column column) {
    const Captions& words = source.captions;
    FigurePrinter printer(sheet, column, kFirstLine);
    printer.Print(FlowLine(
        {words[Caption::AirFlow], words[Caption::AirFlowSecond], words[Caption::AirFlowTotal]},
        source.processes.plant.vhAnlage.text));
    printer.Print(
        FlowLine({words[Caption::AirFlow],
                  words[Caption::RecirculatedAir] + "/" + words[Caption::OutdoorAir]},
                 source.processes.plant.vhinnen.text + "/" + source.processes.plant.vhaussen.text));
}

void PrintLoads(const PrintOutSource& source, Sheet& sheet, Column column, double y0) {
    const Captions& words = source.captions;
    const ProcessFigures& figures = source.processes.figures;
    const std::string capacity = words[Caption::Capacity] + " ";
    FigurePrinter printer(sheet, column, y0 + kFirstLine + kLine);
    printer.Print(capacity + words[Caption::Cooler] + PowerUnit() + figures.KuehlLeistText);
    printer.Print(capacity + words[Caption::Total] + PowerUnit() + NumberText(figures.GesamtLeist));
    printer.Print(capacity + words[Caption::Latent] + PowerUnit() +
                  NumberText(figures.LatentLeist));
    printer.Print(capacity + words[Caption::Sensible] + PowerUnit() +
                  NumberText(figures.SensibelLeist));
    if (!PrintsCondensate(source)) return;
    printer.Print(words[Caption::Water] + " /[kg/h] :" + NumberText(figures.KondensatWasser));
}

void PrintPlantLoads(const PrintOutSource& source, Sheet& sheet) {
    const Captions& words = source.captions;
    const ProcessFigures& figures = source.processes.figures;
    const std::string capacity = words[Caption::Capacity] + " ";
    FigurePrinter printer(sheet, {kPlantRight, RightEdge(source)}, kFirstLine + kLine);
    printer.Print(capacity + words[Caption::HumidifierSecond] +
                  " /[kg/h] :" + NumberText(figures.BefeuchterLeist));
    printer.Print(capacity + words[Caption::Heater] + " " + PowerUnit() +
                  NumberText(figures.HeizLeist));
    printer.Print(words[Caption::Water] + " " + words[Caption::Total] +
                  "    /[kg/h] :" + NumberText(figures.RaumWasser));
}

}  // namespace

const PageScale& ChartPageOf(const ChartSettings& settings) {
    return settings.convention == Convention::Exact ? kExactChartPage : kChartPage;
}

std::string PageHeading(const PrintOutSource& source, const SharedValues& shared) {
    const std::string kind = source.settings.DiagrammArt == kMollier
                                 ? "Mollier " + source.captions[Caption::ModuleName]
                                 : "Carrier psychrometric chart";
    return shared.AppTitle + " " + shared.VersionText + " - " + kind + ", " +
           source.captions[Caption::Pressure] + " :" + NumberText(source.settings.pressure_bar) +
           " bar";
}

void PrintMarks(const Overlay& overlay, Sheet& sheet) {
    sheet.SetFontSize(kMarkFontSize);
    sheet.SetLineWidth(kProcessLineWidth);
    sheet.SetOnChart(true);
    for (const Mark* mark : overlay.Marks()) {
        if (!mark->visible) continue;
        sheet.Circle(mark->left + mark->width / 2, mark->top + mark->height / 2, mark->width / 3);
    }
    for (const ChartLine* line : overlay.Lines()) {
        if (line->visible) sheet.Line(line->x1, line->y1, line->x2, line->y2);
    }
    for (const ChartLabel* label : overlay.Labels()) {
        if (label->visible) sheet.Text(label->left, label->top, label->text);
    }
    sheet.SetOnChart(false);
}

void PrintFigures(const PrintOutSource& source, Sheet& sheet) {
    const bool plant = source.processes.Rechenmodus == Calculation::Plant;
    const bool two_states = HasTwoStates(source.processes.Rechenmodus);
    const double beside = plant ? kPlantRight : kState1;
    const Column left{kLeft, plant || two_states ? beside - kGap : RightEdge(source)};
    sheet.SetFontSize(kMarkFontSize);
    if (plant) {
        PrintPlantFlows(source, sheet, left);
    } else {
        FigurePrinter(sheet, left, kFirstLine)
            .Print(FlowLine(
                {source.captions[Caption::AirFlow], source.captions[Caption::AirFlowSecond]},
                source.processes.point.LuftM1.text));
        if (two_states) PrintTwoStates(source, sheet);
    }
    if (PrintsLoads(source)) PrintLoads(source, sheet, left, plant ? kPlantShift : 0);
    if (plant && PrintsLoads(source)) PrintPlantLoads(source, sheet);
}

}  // namespace zandrell
