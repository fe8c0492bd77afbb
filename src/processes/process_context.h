#pragma once

#include <string>

#include "base/captions.h"
#include "base/shared_values.h"
#include "chart/chart_scale.h"
#include "chart/chart_settings.h"
#include "chart/overlay.h"
#include "chart/read_out.h"
#include "processes/calculation.h"

namespace zandrell {

class StateSolver;

// Figures that a calculation leaves for the print-out. They outlive a change of mode.
struct ProcessFigures {
    std::string KuehlLeistText;
    double GesamtLeist = 0, LatentLeist = 0, SensibelLeist = 0;  // kW
    double KondensatWasser = 0;                                  // kg/h
    double BefeuchterLeist = 0;                                  // kg/h
    double HeizLeist = 0;                                        // kW
    double RaumWasser = 0;                                       // kg/h
    double MischTemp = 0;                                        // degC
    double MischX = 0;                                           // g/kg
};

// What surrounds the calculations. All of it outlives them.
struct ProcessSurroundings {
    SharedValues& shared;
    const Captions& captions;
    StateSolver& solver;
    const ChartSettings& settings;
    const ChartScale& scale;
    Overlay& overlay;
    ReadOutPanel& read_out;
};

// What the calculations work on.
struct ProcessContext : ProcessSurroundings {
    ProcessFigures& figures;
    const Calculation& Rechenmodus;  // bars and some fields act only in their own modes
};

}  // namespace zandrell
