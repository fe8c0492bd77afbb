#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "kernel/state_solver.h"
#include "printing/chart_printing.h"
#include "support/test_folder.h"

namespace zandrell {

// A printer that keeps what it got.
struct KeptPrints : PrintDevice {
    std::string refusal;  // what is wrong with the printer; empty: nothing
    std::vector<std::string> fonts = {"Arial", "Courier", "Times"};
    std::vector<Sheet> printed, previewed;

    std::vector<std::string> FontNames() override { return fonts; }
    DeviceSize PrintableSize(const std::string& paper, bool landscape) override {
        Sheet sheet;
        sheet.paper = paper;
        sheet.landscape = landscape;
        return {static_cast<int>(sheet.WidthMm()), static_cast<int>(sheet.HeightMm())};
    }
    DeviceSize ScreenSize() override { return {1920, 1080}; }
    void PrintToFile(const std::string&) override {}
    bool Print(const Sheet& sheet, std::string& error) override {
        error = refusal;
        if (refusal.empty()) printed.push_back(sheet);
        return refusal.empty();
    }
    void Preview(const Sheet& sheet) override { previewed.push_back(sheet); }
};

// Somebody in front of the print setup who does what a test says, then presses O.K. unless the
// window has closed by then.
struct SetupUser : UserInterface {
    std::function<void(ModalForm&)> in_window;
    std::vector<Message> messages;
    bool dialog_confirmed = true;  // that of the printer
    std::vector<std::string> dialog_titles;

    void ShowModal(ModalForm& window) override {
        if (in_window) in_window(window);
        if (!window.closed) window.UserClick(window.default_control);
        EXPECT_TRUE(window.closed);
    }
    void ShowMessage(const Message& message) override { messages.push_back(message); }
    bool Confirm(const Message&) override { return false; }
    void WaitMilliseconds(int) override {}
    void CopyChart() override {}
    bool ChoosePrinter(const std::string& title) override {
        dialog_titles.push_back(title);
        return dialog_confirmed;
    }
};

// Chart, both panels and the print-out over a data folder of their own, on 21 November 2026.
struct PrintingSession {
    TestFolder folder;
    DataFiles files{folder.Path()};
    SharedValues shared;
    Captions captions;
    StateSolver solver{files};
    Overlay overlay;
    ReadOutPanel read_out;
    ChartEngine chart{files, shared, captions, solver, overlay, read_out};
    ProcessPanels processes{
        {shared, captions, solver, chart.settings, chart.scale, overlay, read_out}};
    PointPanel& point = processes.point;
    PlantPanel& plant = processes.plant;
    ProcessFigures& figures = processes.figures;
    TextField Proj_T{"Proj_T"}, Schr_T{"Schr_T"};
    SetupUser user;
    KeptPrints device;
    ChartPrinting printing{
        {user, files, shared, captions, chart, overlay, processes, Proj_T, Schr_T}};
    int repeats = 0;

    PrintingSession() {
        folder.CopyWholeSet();
        shared.clock_day = ReadDay("2026-11-21");
        shared.UserCompany = "Kältebau Nord  ";
        shared.PaperSize = "A4";
        SetWords();
        chart.TakeAspect(1280 * 15);
        printing.SetDevice(&device);
        printing.after_printing = [this] { ++repeats; };
        Paint();
    }

    // Words of its own, so that a test tells them apart and no wording of a language matters.
    void SetWords() {
        const std::pair<Caption, const char*> words[] = {
            {Caption::AirFlow, "Flow"},
            {Caption::AirFlowSecond, "air"},
            {Caption::AirFlowTotal, "total"},
            {Caption::RecirculatedAir, "inner"},
            {Caption::OutdoorAir, "outer"},
            {Caption::Temperature, "t"},
            {Caption::RelativeHumidity, "phi"},
            {Caption::HumidityRatio, "x"},
            {Caption::Enthalpy, "h"},
            {Caption::Capacity, "Q"},
            {Caption::Cooler, "cooler"},
            {Caption::Total, "all"},
            {Caption::Latent, "latent"},
            {Caption::Sensible, "sensible"},
            {Caption::Water, "water"},
            {Caption::HumidifierSecond, "humidifier"},
            {Caption::Heater, "heater"},
            {Caption::Mixing, "mixed"},
            {Caption::ModuleName, "chart"},
            {Caption::Pressure, "pressure"},
            {Caption::Company, "company"},
            {Caption::Project, "project"},
            {Caption::Remark, "remark"},
            {Caption::Date, "date"},
            {Caption::Page, "page"},
            {Caption::SheetKind, "sheet"},
            {Caption::Printer, "printer"},
            {Caption::Settings, "settings"},
            {Caption::Select, "select"},
            {Caption::PaperSize, "paper"},
        };
        for (const auto& [caption, word] : words) captions[caption] = word;
    }

    void ChooseChart(int kind, int ground = kWhiteGround,
                     Convention convention = Convention::Suite) {
        ChartSettings settings;
        settings.convention = convention;
        settings.DiagrammArt = kind;
        settings.Helligkeit = ground;
        EXPECT_EQ(WriteChartSettings(files, settings), FileStatus::Ok);
        Paint();
    }

    void Paint(ChartTask modus = ChartTask::PaintWhole, double a = 0, double b = 0) {
        chart.DiagrammZeichnen(modus, a, b, solver.ChartDruckBar);
    }

    // Two states in a mode of the point panel.
    void RunPoint(Calculation mode, const char* t1, const char* relF1, const char* t2,
                  const char* relF2) {
        processes.Rechenmodus = mode;
        point.ShowForMode(mode);
        point.LuftM1.text = "1000";
        point.LuftM2.text = "500";
        point.Temp1.text = t1;
        point.relF1.text = relF1;
        point.Temp2.text = t2;
        point.relF2.text = relF2;
        point.ZustandRechnen(
            mode, mode == Calculation::Mixing ? MarkPlacing::WithMixture : MarkPlacing::FromFields);
    }

    // A summer case of the plant.
    void RunPlant() {
        processes.Rechenmodus = Calculation::Plant;
        plant.vhAnlage.text = "4000";
        plant.aussenAnt.text = "1";
        plant.VolumenTeilen();
        plant.tabLuft.text = "26";
        plant.PHIAbluft.text = "50";
        plant.Taus.text = "32";
        plant.PhiAussen.text = "40";
        plant.TZuluft.text = "18";
        plant.PHIZuluft.text = "60";
        plant.tKA.text = "13";
        plant.phiKanal.text = "95";
        plant.dtVent1.text = plant.dtVent2.text = "1";
        plant.TakeBarsFromFields();
        plant.AnlageBerechnen();
    }
};

// The text that stands at a place of the page in a coordinate system; "-" when there is none.
inline std::string TextAt(const Sheet& sheet, const PageScale& scale, double x, double y) {
    for (const SheetItem& item : sheet.Items()) {
        const bool there = item.kind == SheetItem::Kind::Text && item.scale == scale &&
                           std::abs(item.x1 - x) < 1e-6 && std::abs(item.y1 - y) < 1e-6;
        if (there) return item.text;
    }
    return "-";
}

}  // namespace zandrell
