#pragma once

#include <gtest/gtest.h>

#include <string>

#include "base/data_files.h"
#include "kernel/state_solver.h"
#include "processes/process_panels.h"

namespace zandrell {

// Both panels on one chart without the main window, and what a user does to them.
struct ProcessWindow {
    SharedValues shared;
    Captions captions;
    DataFiles files{ZANDRELL_STAGED_DATA};
    StateSolver solver{files};
    ChartSettings settings;
    ChartScale scale;
    Overlay overlay;
    ReadOutPanel read_out;
    ProcessPanels processes{{shared, captions, solver, settings, scale, overlay, read_out}};
    ProcessFigures& figures = processes.figures;
    PointPanel& point = processes.point;
    PlantPanel& plant = processes.plant;
    Calculation& Rechenmodus = processes.Rechenmodus;
    ActTable acts;
    int plant_runs = 0;  // started by bars

    ProcessWindow() {
        solver.ChartDruckBar = 1.013;
        captions[Caption::Mixing] = "mix";
        captions[Caption::Leaving] = "behind";
        captions[Caption::Cooler] = "cooler";
        captions[Caption::RecirculatedAir] = "inner air";
        captions[Caption::OutdoorAir] = "outer air";
        ApplyBaseScale(settings, scale);
        scale.CarrierFaktor = 2.5;
        processes.BindActs(acts);
        CountPlantRuns();
    }

    void ChooseChart(int kind) {
        settings.DiagrammArt = kind;
        ApplyBaseScale(settings, scale);
    }

    // The point panel.
    void Open(Calculation mode) {
        Rechenmodus = mode;
        point.ShowForMode(mode);
    }
    void SetStates(const char* t1, const char* relF1, const char* t2, const char* relF2) {
        point.Temp1.text = t1;
        point.relF1.text = relF1;
        point.Temp2.text = t2;
        point.relF2.text = relF2;
    }
    void Calculate() { point.ZustandRechnen(Rechenmodus, MarkPlacing::FromFields); }
    void Return(const TextField& field) { acts.Perform(field.name, ActKind::Return); }

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
        Rechenmodus = Calculation::Plant;
        plant.AnlageBerechnen();
    }
    void ChooseWater() { Choose(plant.Option3D4, plant.Option3D3); }

  private:
    void CountPlantRuns() {
        for (ScrollBar* bar : {&plant.taScroll, &plant.tzuScroll, &plant.tabScroll,
                               &plant.Phiaussenscroll, &plant.PHIAbscroll, &plant.PhiZuscroll}) {
            bar->on_change = [this, handler = bar->on_change] {
                if (Rechenmodus == Calculation::Plant) ++plant_runs;
                handler();
            };
        }
    }
};

}  // namespace zandrell
