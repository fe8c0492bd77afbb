#pragma once

#include <functional>

#include "forms/act_table.h"
#include "forms/control.h"
#include "forms/form.h"
#include "forms/scroll_bar.h"
#include "processes/exact_plant.h"
#include "processes/field_notes.h"
#include "processes/plant_drawing.h"
#include "processes/process_context.h"
#include "processes/process_states.h"

namespace zandrell {

// What the pointer read-out leaves in a humidity field that a mark was dropped into; counts as 100.
inline constexpr std::string_view kInTheFog = "> 100";

// The floating panel of the air-handling plant with a room.
class PlantPanel {
  public:
    explicit PlantPanel(const ProcessContext& context) : context_(context) {}
    PlantPanel(const PlantPanel&) = delete;  // its records know its fields
    PlantPanel& operator=(const PlantPanel&) = delete;

    Panel Frame1{"Frame1"}, Panel3D10{"Panel3D10"}, Panel3D2{"Panel3D2"};
    Label Label16{"Label16"};          // title line of the panel
    Label tool_name{"PlantToolName"};  // below it: what the panel calculates
    TextField vhAnlage{"vhAnlage"}, aussenAnt{"aussenAnt"}, vhinnen{"vhinnen"},
        vhaussen{"vhaussen"};
    TextField tabLuft{"tabLuft"}, PHIAbluft{"PHIAbluft"}, Taus{"Taus"}, PhiAussen{"PhiAussen"},
        TZuluft{"TZuluft"}, PHIZuluft{"PHIZuluft"}, tKA{"tKA"}, phiKanal{"phiKanal"},
        dtVent1{"dtVent1"}, dtVent2{"dtVent2"};
    OptionButton Option3D3{"Option3D3", true}, Option3D4{"Option3D4"};  // steam, water
    ScrollBar taScroll{"taScroll"}, tzuScroll{"tzuScroll"}, tabScroll{"tabScroll"},
        Phiaussenscroll{"Phiaussenscroll"}, PHIAbscroll{"PHIAbscroll"}, PhiZuscroll{"PhiZuscroll"};
    Label RaumLeist{"RaumLeist"}, RaumSensLeist{"RaumSensLeist"}, RaumLatLeist{"RaumLatLeist"},
        RaumWasserLeist{"RaumWasserLeist"}, Kuehl{"Kuehl"}, Heiz2{"Heiz2"}, Bef{"Bef"};
    // Captions: t and relative humidity beside exhaust, outside and supply air and the coil, and
    // words.
    Label Label34{"Label34"}, Label38{"Label38"}, Label39{"Label39"}, Label57{"Label57"},
        Label43{"Label43"}, Label56{"Label56"}, Label11{"Label11"},
        coil_temperature_label{"tKALabel"};
    Label flow_label{"vhAnlageLabel"}, ratio_label{"aussenAntLabel"},
        inner_flow_label{"vhinnenLabel"}, outer_flow_label{"vhaussenLabel"},
        exhaust_label{"AbluftLabel"}, outside_label{"AussenLabel"}, supply_label{"ZuluftLabel"},
        coil_label{"KanalLabel"}, supply_fan_label{"dtVent1Label"},
        return_fan_label{"dtVent2Label"}, room_label{"RaumLabel"},
        room_total_label{"RaumLeistLabel"}, room_sensible_label{"RaumSensLeistLabel"},
        room_latent_label{"RaumLatLeistLabel"}, room_water_label{"RaumWasserLeistLabel"},
        cooler_label{"KuehlLabel"}, heater_label{"Heiz2Label"}, humidifier_label{"BefLabel"};
    Button AnlageAbButt{"AnlageAbButt", "abcap.bmp"}, AnlageAbButt_l{"AnlageAbButt_l"},
        Command3D6{"Command3D6", "OKcap.bmp"}, Command3D6_l{"Command3D6_l"}, Picture12{"Picture12"};

    // A run has raised the exhaust or the supply humidity; whoever tells the user of it takes it
    // back.
    bool exhaust_raised = false, supply_raised = false;
    int AnlageZweig = 0;  // 1: the run before went the way without cooler

    void ListControls(Form& form);
    // What a user can do to the fields, bars and options. Opening and closing are the window's.
    void BindActs(ActTable& acts);

    // Ranges and positions of the bars as the opening of the panel sets them.
    void TakeBarsFromFields();

    // Splits the plant's flow into inner and outer air by their ratio, cut to whole m3/h. Without a
    // flow above 0 the shares stay.
    void VolumenTeilen();
    // Return in a share: flow and ratio follow from the shares. False unless both are positive.
    bool TakeFlowFromShares();

    // Reads the panel, corrects what cannot hold together, computes every state, draws the process
    // and writes the figures. Runs that it starts itself by moving a bar end before it goes on.
    void AnlageBerechnen();

    // Marks the fields that are not used or not confirmed, and the figures of other inputs.
    void NoteFields();

    ProcessStates States() const;

  private:
    // A field, the bar that writes it, and what Return in the field does before the plant is
    // computed; false where that leaves nothing to compute.
    struct Input {
        TextField* field;
        ScrollBar* bar;
        std::function<bool()> before;
    };
    void Bind(ActTable& acts, const Input& input);
    void BindOption(ActTable& acts, OptionButton& chosen, OptionButton& other);
    bool IsInForce() const { return context_.Rechenmodus == Calculation::Plant; }

    bool Compute();
    bool IsExact() const { return context_.settings.convention == Convention::Exact; }
    bool RunByTheSuite();
    bool RunBySettledInputs();
    bool SettleInputs(PlantInputs& inputs, ExactHumidities& humidities);
    bool CorrectExactly(PlantInputs& inputs, ExactHumidities& humidities);
    void ShowExactly(const ExactPlantRun& run);

    bool ReadInputs(PlantInputs& inputs);
    static double ReadHumidity(const TextField& field);
    double ReadFanRise(TextField& field);
    bool CorrectHumidities(PlantRun& run);
    void HoldSupplyAboveCoil(const PlantInputs& inputs);
    void MoveHumidityBars(const PlantInputs& inputs);
    bool MixExhaustAndOutside(PlantRun& run);
    bool SupplyTheRoom(PlantRun& run);
    void ShowRoomLoads(const RoomLoads& loads, double factor);
    bool ChooseTheWay(PlantRun& run);
    bool CoolAndHeat(const PlantRun& run);
    bool HeatOnly(const PlantRun& run);
    void StartWay(bool without_cooler);
    void ShowCoolerFigures(const PlantRun& run, const CoolerWay& way);
    void ShowHeaterFigures(const PlantRun& run, const AirPoint& heated);
    void ShowHeaterBehindCooler(double capacity_kw, double factor);
    // Figures that are cut already. The unit follows a number without a blank where wide figures
    // have to fit the labels.
    static constexpr std::string_view kUnitBehindCooler = " kW\r\n\r\n", kWaterUnit = " kg/h",
                                      kNarrowWaterUnit = "kg/h";
    void ShowCooler(double shown_kw);
    void ShowNoCooler();
    void ShowHeater(double shown_kw, std::string_view unit);
    void ShowHumidifier(double shown_kg_per_h, std::string_view unit);
    PlantDrawing Drawing() const;
    std::string Basis() const;
    std::optional<Refusal> RefusalOf(const TextField& field) const;
    std::optional<Refusal> HumidityNote(const TextField& field) const;
    std::optional<Refusal> AgainstAir(const TextField& temperature,
                                      const TextField& humidity) const;
    void KeepWay(const PlantRun& run, const AirPoint& heated);

    // The states of the last run, for the table of states.
    struct Way {
        MixingSection mixing;
        AirPoint supply, before_fan, heated;
        std::optional<AirPoint> coil;  // empty without cooling
        double Anzeigefaktor = 1000;
    };

    ProcessContext context_;
    Way way_;
    // What the last run took, and what the shown figures rest on.
    TakenTexts taken_{&vhAnlage,  &aussenAnt, &vhinnen,   &vhaussen, &tabLuft,
                      &PHIAbluft, &Taus,      &PhiAussen, &TZuluft,  &PHIZuluft,
                      &tKA,       &phiKanal,  &dtVent1,   &dtVent2};
    TakenTexts figures_of_ = taken_;
    bool humidifier_shown_ = false;            // its figure is of the last run
    const TextField* refused_rise_ = nullptr;  // a typed fan rise that the last run replaced
    int running_ = 0;                          // runs that are not done, nested ones too
    bool settling_ = false, asked_again_ = false;
};

}  // namespace zandrell
