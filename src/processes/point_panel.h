#pragma once

#include <optional>

#include "forms/act_table.h"
#include "forms/control.h"
#include "forms/form.h"
#include "forms/scroll_bar.h"
#include "processes/air_point.h"
#include "processes/exact_tools.h"
#include "processes/field_notes.h"
#include "processes/process_context.h"
#include "processes/process_states.h"
#include "processes/state_change.h"
#include "processes/state_entry.h"

namespace zandrell {

// The floating panel of two air states: state change, capacity, mixing and the four tools.
class PointPanel {
  public:
    explicit PointPanel(const ProcessContext& context);
    PointPanel(const PointPanel&) = delete;  // its records know its fields
    PointPanel& operator=(const PointPanel&) = delete;

    Panel Anlage1PN{"Anlage1PN"}, Panel3D9{"Panel3D9"};
    Label Label33{"Label33"}, Label35{"Label35"}, Label36{"Label36"}, label37{"label37"},
        enthPN{"enthPN"}, second_flow_label{"LuftM2Label"}, mixture_label{"MixtureLabel"};
    Label Label15{"Label15"};          // title line of the panel
    Label tool_name{"PointToolName"};  // below it: what the panel calculates
    TextField Temp1{"Temp1"}, relF1{"relF1"}, Temp2{"Temp2"}, relF2{"relF2"}, LuftM1{"LuftM1"},
        LuftM2{"LuftM2"}, Kleist{"Kleist"};
    Label absF1{"absF1"}, enth1{"enth1"}, absF2{"absF2"}, enth2{"enth2"};
    Label capacity_label{"KleistLabel"}, latent_label{"KLatentLabel"},
        sensible_label{"KsensibelLabel"}, water_label{"KondWLabel"};
    Label KLatent{"KLatent"}, Ksensibel{"Ksensibel"}, KondW{"KondW"};
    Label TempM{"TempM"}, relFM{"relFM"}, absFM{"absFM"};
    ScrollBar Tscroll1{"Tscroll1"}, FScroll1{"FScroll1"}, Tscroll2{"Tscroll2"},
        FScroll2{"FScroll2"}, VScroll1{"VScroll1", 0, 200}, Vscroll2{"Vscroll2", 0, 200};
    Button VolBer{"VolBer", "brcaps.bmp"}, VolBer_l{"VolBer_l"}, wrgButt{"wrgButt"};
    StateEntry entry1, entry2;
    Button Command3D4{"Command3D4", "OKcap.bmp"}, abbcom{"abbcom", "abcap.bmp"},
        Picture3{"Picture3"};

    double ZustandX1 = 0, ZustandX2 = 0;        // g/kg, of the two states
    double LuftSchritt1 = 0, LuftSchritt2 = 0;  // m3/h per unit of the flow bars; 0: not yet known

    void ListControls(Form& form);
    // What a user can do to the fields and bars. Opening, closing and the selection are the
    // window's.
    void BindActs(ActTable& acts);

    // Shows and hides what the mode needs, takes the bar ranges from the chart and shows the panel.
    // Tscroll2 stays hidden once the steam humidifier has hidden it: from then on state 2 is
    // typed, as the suite's users know it.
    void ShowForMode(Calculation mode);

    // The ranges of the temperature bars, which are those of the chart.
    void TakeBarRanges();

    // Reads the six fields, computes both states, lets the tool fill in state 2, draws, and gives
    // capacity or mixture.
    void ZustandRechnen(Calculation mode, MarkPlacing marke);

    // Places marks, line and labels of the two states, and with MarkPlacing::WithMixture the mixing
    // point.
    void MarkenSetzen(Calculation mode, MarkPlacing marke);
    // Brings the bars in line with the fields. A value outside the chart or the bar leaves it.
    void SchieberAbgleich();

    // The volume flow that gives the wanted capacity in Kleist. False, with the flow as it was,
    // where no positive one does.
    bool VolStrm_rech(Calculation mode);
    // The same with the rounding of the flow taken out of the three capacities again.
    void VolumeFromCapacity(Calculation mode);

    // Brings the figures by which the states are given in line with them.
    void FollowStates();

    // Marks the fields that are not used or not confirmed, and the figures of other inputs.
    void NoteFields();

    ProcessStates States() const;

  private:
    // A volume flow, its bar and the flow per unit of the bar.
    struct FlowInput {
        TextField& field;
        ScrollBar& bar;
        double& step;
        bool echoes;  // its acts announce an echoing activation
    };
    FlowInput FirstFlow() { return {LuftM1, VScroll1, LuftSchritt1, true}; }
    FlowInput SecondFlow() { return {LuftM2, Vscroll2, LuftSchritt2, false}; }
    // A flow above 0 puts its bar into the middle of a range up to twice the flow.
    static void TakeFlowStep(const FlowInput& flow);

    void BindState(ActTable& acts, TextField& field, ScrollBar& bar);
    void BindEntry(ActTable& acts, StateEntry& entry);
    void BindFlow(ActTable& acts, const FlowInput& flow);
    void FollowBar(TextField& field, double value, bool echoes);

    void Compute(Calculation mode, MarkPlacing marke);

    struct Inputs {
        double t1 = 0, t2 = 0;          // degC
        double relF1 = 0, relF2 = 0;    // per cent
        double LuftM1 = 0, LuftM2 = 0;  // m3/h
    };

    Inputs ReadInputs() const;
    bool WithinChart(const Inputs& inputs) const;
    bool EvaluateStates(const Inputs& inputs);
    bool EvaluateGivenState(Calculation mode, const Inputs& inputs);
    bool EvaluateFilledInState(Calculation mode, const Inputs& inputs);
    bool InRange(double t) const;
    AirPoint FirstState(double t1) const { return {t1, ZustandX1, enthalpy1_}; }
    AirPoint SecondState(double t2) const { return {t2, ZustandX2, enthalpy2_}; }

    bool IsExact() const { return context_.settings.convention == Convention::Exact; }
    // A state as the fields give it.
    struct GivenAir {
        double x = 0, h = 0;      // g/kg, kJ/kg
        double flow_density = 0;  // what a cubic metre counts in the balances, kg/m3
    };
    // By each convention; empty outside the limits.
    std::optional<GivenAir> AirOfTheSuite(double relF_percent, double t);
    std::optional<GivenAir> ExactAirOf(double relF_percent, double t);
    std::optional<GivenAir> AirOf(double relF_percent, double t) {
        return IsExact() ? ExactAirOf(relF_percent, t) : AirOfTheSuite(relF_percent, t);
    }

    // State 2 of a tool by each convention; false when it is outside the limits.
    bool FillInByTexts(Calculation mode, const Inputs& inputs);
    bool FillInExactly(Calculation mode, const Inputs& inputs);
    std::optional<ToolOutlet> OutletOf(Calculation mode, const Inputs& inputs);

    void FillInSecondState(Calculation mode, const Inputs& inputs);
    void KeepHumidity(std::optional<double> fraction);
    void HumidifyWithWater(const Inputs& inputs);
    void HumidifyWithSteam(const Inputs& inputs);

    std::optional<Mixture> MixByVolume(const Inputs& inputs);
    std::optional<Mixture> MixExactly(const Inputs& inputs);
    void ShowMixture(Calculation mode, const Inputs& inputs);
    void ShowCapacity(Calculation mode, const Inputs& inputs);
    void ShowBothMarks();
    void PlaceMixture();
    void ShowSecondFlow(bool shown);
    std::string Basis(Calculation mode) const;
    std::optional<Refusal> RefusalOf(const TextField& field) const;
    bool HasState(const TextField& humidity, const TextField& temperature) const;

    ProcessContext context_;
    // What the last run took, and what the shown states and the shown outcome rest on.
    TakenTexts taken_{&Temp1, &relF1, &Temp2, &relF2, &LuftM1, &LuftM2, &Kleist};
    TakenTexts states_of_{&Temp1, &relF1, &Temp2, &relF2};
    TakenTexts outcome_of_{&Temp1, &relF1, &Temp2, &relF2, &LuftM1, &LuftM2};
    bool bars_run_nothing_ = false;
    bool capacity_refused_ = false;  // no flow gives what was asked for
    // Of the two states; kept while the inputs are outside the limits, and so are the figures.
    double enthalpy1_ = 0, enthalpy2_ = 0;  // kJ/kg
    double density1_ = 0, density2_ = 0;    // kg/m3, of GivenAir
};

}  // namespace zandrell
