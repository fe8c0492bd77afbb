#pragma once

#include <gtest/gtest.h>

#include <string>

#include "base/data_files.h"
#include "base/number_text.h"
#include "processes/plant_panel.h"
#include "processes/point_panel.h"

namespace zandrell {

// Both panels on one chart with their bars bound as the main window binds them, and what a user
// does to them.
struct ProcessWindow {
    SharedValues shared;
    Captions captions;
    DataFiles files{ZANDRELL_STAGED_DATA};
    StateSolver solver{files};
    ChartSettings settings;
    ChartScale scale;
    Overlay overlay;
    ReadOutPanel read_out;
    ProcessFigures figures;
    ProcessContext context{shared, captions, solver, settings, scale, overlay, read_out, figures};
    PointPanel point{context};
    PlantPanel plant{context};
    int Rechenmodus = 0;
    int plant_runs = 0;  // started by bars

    ProcessWindow() {
        solver.ChartDruckBar = 1.013;
        captions.QVCaptList[6] = "mix";
        captions.QVCaptList[11] = "behind";
        captions.CaptionList[13] = "cooler";
        captions.QVCaptList[12] = "inner air";
        captions.QVCaptList[13] = "outer air";
        ApplyBaseScale(settings, scale);
        scale.CarrierFaktor = 2.5;
        BindPointBars();
        BindPlantBars();
    }

    void ChooseChart(int kind) {
        settings.DiagrammArt = kind;
        ApplyBaseScale(settings, scale);
    }

    // The point panel.
    void Open(int mode) {
        Rechenmodus = mode;
        point.ShowForMode(mode);
    }
    void SetStates(const char* t1, const char* relF1, const char* t2, const char* relF2) {
        point.Temp1.text = t1;
        point.relF1.text = relF1;
        point.Temp2.text = t2;
        point.relF2.text = relF2;
    }
    void Calculate() { point.ZustandRechnen(Rechenmodus, kMarksFromFields); }
    void ReturnInState() {
        point.SchieberAbgleich();
        Calculate();
    }
    void ReturnInFlow1() {
        Calculate();
        point.SchieberAbgleich();
        point.TakeFlowStep1();
    }

    // The plant: flow, ratio, exhaust, outside, supply, coil (t and humidity), fan rises.
    void SetPlant(const char* V, const char* r, const char* tAb, const char* phiAb,
                  const char* tAus, const char* phiAus, const char* tZu, const char* phiZu,
                  const char* t_coil, const char* phiKa, const char* dt1, const char* dt2) {
        plant.vhAnlage.text = V;
        plant.aussenAnt.text = r;
        plant.tabLuft.text = tAb;
        plant.PHIAbluft.text = phiAb;
        plant.Taus.text = tAus;
        plant.PhiAussen.text = phiAus;
        plant.TZuluft.text = tZu;
        plant.PHIZuluft.text = phiZu;
        plant.tKA.text = t_coil;
        plant.phiKanal.text = phiKa;
        plant.dtVent1.text = dt1;
        plant.dtVent2.text = dt2;
    }
    void OpenPlant() {
        plant.TakeBarsFromFields();
        Rechenmodus = kPlant;
        plant.AnlageBerechnen();
    }
    void ChooseWater() { Choose(plant.Option3D4, plant.Option3D3); }

  private:
    void AfterPointBar(bool clears_flag = true) {
        Calculate();
        point.SchieberAbgleich();
        if (clears_flag) shared.ZurueckVomDialog = 0;
    }
    void BindField(ScrollBar& bar, TextField& field) {
        bar.on_change = [this, &bar, &field] {
            if (!IsPointMode(Rechenmodus)) return;
            field.text = NumberText(bar.Position() / 10.0);
            AfterPointBar();
        };
    }
    void BindFlow(ScrollBar& bar, TextField& field, const double& step, bool clears_flag) {
        bar.on_change = [this, &bar, &field, &step, clears_flag] {
            if (!IsPointMode(Rechenmodus) || !(ParsedNumber(field.text) > 0)) return;
            field.text = NumberText(bar.Position() * step);
            AfterPointBar(clears_flag);
        };
    }
    void BindPointBars() {
        BindField(point.Tscroll1, point.Temp1);
        BindField(point.FScroll1, point.relF1);
        BindField(point.Tscroll2, point.Temp2);
        BindField(point.FScroll2, point.relF2);
        BindFlow(point.VScroll1, point.LuftM1, point.LuftSchritt1, true);
        BindFlow(point.Vscroll2, point.LuftM2, point.LuftSchritt2, false);
    }
    void BindPlantBar(ScrollBar& bar, TextField& field) {
        bar.on_change = [this, &bar, &field] {
            if (Rechenmodus != kPlant) return;
            field.text = NumberText(bar.Position() / 10.0);
            ++plant_runs;
            plant.AnlageBerechnen();
        };
    }
    void BindPlantBars() {
        BindPlantBar(plant.taScroll, plant.Taus);
        BindPlantBar(plant.tzuScroll, plant.TZuluft);
        BindPlantBar(plant.tabScroll, plant.tabLuft);
        BindPlantBar(plant.Phiaussenscroll, plant.PhiAussen);
        BindPlantBar(plant.PHIAbscroll, plant.PHIAbluft);
        BindPlantBar(plant.PhiZuscroll, plant.PHIZuluft);
    }
};

}  // namespace zandrell
