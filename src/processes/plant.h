#pragma once

#include <optional>

#include "processes/air_point.h"

// The air-handling plant with a room, in value functions: exhaust air, return fan, mixing with
// outside air, cooling coil, heater, humidifier, supply fan. Temperatures in degC, humidity ratios
// in g/kg, relative humidities in per cent, enthalpies in kJ per kg of dry air, flows of air in
// m3/h or, as dry air, in kg/h. An answer is empty when a state is outside the limits.
//
// The balances are the usual ones per kg of dry air (as in ASHRAE Handbook Fundamentals, chapter
// Psychrometrics). Throughout, the ratio of a humidity ratio to that of saturation is taken for the
// relative humidity; what is computed from it comes out a little too dry. Plants that were planned
// with the suite were planned with these figures.
namespace zandrell {

class StateSolver;

// What one run holds of the panel's fields.
struct PlantInputs {
    double V = 0;                 // flow of the plant, m3/h
    double r = 0;                 // inner to outer air, at least 0
    double tAb = 0, phiAb = 0;    // exhaust air, the state of the room
    double tAus = 0, phiAus = 0;  // outside air
    double tZu = 0, phiZu = 0;    // supply air, behind the supply fan
    double tKA = 0, phiKa = 0;    // air leaving the coil
    double dt1 = 0, dt2 = 0;      // rises over the supply and the return fan, K
    bool steam = false;           // humidifier: steam, else water
};

// A fan rise above 3 K is taken for a slip of the pen, not for a large fan: it falls back to the
// usual 1 K.
inline constexpr double kHighestFanRise = 3, kFallbackFanRise = 1;  // K

// x of the exhaust and the supply air as the fields have them.
struct RoomHumidities {
    double xAb = 0, xZu = 0;
};
std::optional<RoomHumidities> HumiditiesOfRoom(StateSolver& solver, const PlantInputs& inputs);

// Raises the exhaust humidity when the room could not take up moisture, else the supply humidity
// to the floor that coil or outside air set. Answers whether the coil has nothing to cool.
std::optional<bool> RaiseHumidities(StateSolver& solver, const RoomHumidities& room,
                                    PlantInputs& inputs);

struct MixingSection {
    AirPoint exhaust;     // of the room
    AirPoint behind_fan;  // behind the return fan
    AirPoint outside;
    AirPoint mixed;
    double mL = 0;  // dry-air flow, kg/h
};

// The mix is linear between the fan-warmed exhaust air and the outside air, and the ratio r alone
// decides it: the shares Vi and Va do not enter.
std::optional<MixingSection> MixingOf(StateSolver& solver, const PlantInputs& inputs);

// The state behind the supply fan, as the air enters the room.
std::optional<AirPoint> SupplyOf(StateSolver& solver, const PlantInputs& inputs);

// The air in front of the supply fan.
struct FanInlet {
    AirPoint air;    // t1, the humidity of the supply, h1
    double xs1 = 0;  // saturation humidity at t1; 0 when the fan does not warm
};
std::optional<FanInlet> FanInletOf(StateSolver& solver, const AirPoint& supply, double dt1);

struct RoomLoads {
    // Positive where the supply air takes heat or water from the room.
    double total_kw = 0, sensible_kw = 0, latent_kw = 0;
    double water_kg_per_h = 0;
};

// The split goes over the room temperature at supply humidity.
std::optional<RoomLoads> RoomLoadsOf(StateSolver& solver, const MixingSection& mixing,
                                     const AirPoint& supply);

// Finer for small loads: 1000, from above 10 kW 100, above 100 kW 10, above 1000 kW 1. A negative
// load keeps 1000. All figures of a run but one are cut with it.
double AnzeigefaktorOf(double total_kw);

// Air leaving the coil.
struct CoilSection {
    AirPoint air;      // tKA, xKa, hKa
    double hDiff = 0;  // reheat from the coil to t1 at coil humidity, kJ/kg
};
std::optional<CoilSection> CoilOf(StateSolver& solver, const PlantInputs& inputs, double t1);

// The way through cooler and heater.
struct CoolerWay {
    AirPoint heated;   // the heater's outlet; its enthalpy is not used
    double hKaus = 0;  // enthalpy behind the coil, for the figures
    double hDiff = 0;  // what the heater adds, kJ/kg
    bool BefeuchterNoetig = false;
};
std::optional<CoolerWay> CoolerWayOf(StateSolver& solver, bool steam, const CoilSection& coil,
                                     const AirPoint& before_fan);

// The way with the cooler not in use: the mixed air goes straight to the heater. Answers the
// heater's outlet. With a water humidifier the coil's enthalpy hKa is taken off its enthalpy
// whenever the coil state was computed at all (else it is 0); the suite's figures are made so.
std::optional<AirPoint> HeaterWayOf(StateSolver& solver, bool steam, const AirPoint& mixed,
                                    const AirPoint& before_fan, double hKa);

// What it takes to bring the dry-air flow mL (kg/h) from one enthalpy to the other, in kW. Each
// enthalpy is divided by 1 - x / 1000 with the humidity given beside it: cooler, heater and
// humidifier are counted so, as per kg of moist air; the room loads per kg of dry air. The suite's
// other modules size their coils by these figures.
double CapacityKw(double mL, double from_h, double from_x, double to_h, double to_x);

// Water that brings the flow mL from one humidity to the other, counted in the same way, kg/h.
double HumidifierWater(double mL, double from_x, double to_x);

// What one run knows when it has passed the mixing and the room.
struct PlantRun {
    PlantInputs inputs;
    bool OhneKuehler = false;
    MixingSection mixing;
    AirPoint supply;
    FanInlet fan_inlet;
    CoilSection coil;  // all 0 when the mix leaves the cooler nothing to do
    double Anzeigefaktor = 1000;
};

}  // namespace zandrell
