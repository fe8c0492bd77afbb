#pragma once

#include <array>

// Fits of the real-air model, made by tools/make_real_air.cpp from
// data/properties/real-air.csv, data/properties/saturated-water.csv and the equation
// of the sublimation pressure: polynomials in 273.16 K / T - 1. The figure behind each is
// the largest deviation relative to the value.
namespace zandrell::real_air {

// clang-format off
// Second virial coefficient of air, cm3/mol, -60..100 degC; off by 7.4e-07.
inline constexpr std::array<double, 7> kBaa{
    -1.35597891602e+01,
    -6.59035565454e+01,
    -1.21681117430e+01,
    1.27251434419e+00,
    -2.64936057421e+00,
    1.87558546896e+00,
    -1.73234805523e+00,
};
// of air with water; off by 1.4e-07.
inline constexpr std::array<double, 7> kBaw{
    -3.80705049078e+01,
    -9.78486622912e+01,
    -3.19074066564e+01,
    -6.44062601469e+00,
    -2.68006322136e+00,
    1.89190642464e+00,
    -1.53849687473e+00,
};
// of water; off by 6.6e-08.
inline constexpr std::array<double, 10> kBww{
    -2.02517981519e+03,
    -1.20170413876e+04,
    -3.75413167097e+04,
    -7.82263914324e+04,
    -1.16643631232e+05,
    -1.32584364009e+05,
    -1.22506259742e+05,
    -9.44164616413e+04,
    -5.86948236838e+04,
    -2.42816248947e+04,
};
// Third virial coefficient of air, cm6/mol2, -60..100 degC; off by 2.7e-08.
inline constexpr std::array<double, 7> kCaaa{
    1.89306667065e+03,
    9.35314439323e+02,
    2.80594627585e+02,
    -3.73964009019e+01,
    1.30857421565e+01,
    -6.64577340181e+00,
    3.74891416731e+00,
};
// of two of air with water; off by 5.7e-08.
inline constexpr std::array<double, 8> kCaaw{
    8.60993763981e+02,
    6.67190789487e+02,
    1.29567233349e+01,
    -8.49503093174e+02,
    -5.73525535759e+02,
    -1.54868465640e-02,
    -8.97279241757e-03,
    1.00275449467e-01,
};
// of air with two of water; off by 1.1e-05.
inline constexpr std::array<double, 10> kCaww{
    -2.24173190453e+05,
    -1.65289824763e+06,
    -6.04428089058e+06,
    -1.49859400652e+07,
    -2.90026093603e+07,
    -4.70591050708e+07,
    -6.68347087416e+07,
    -9.32507722117e+07,
    -1.33672116367e+08,
    -1.17955503417e+08,
};
// of water; off by 2.0e-03.
inline constexpr std::array<double, 12> kCwww{
    -1.09737582877e+07,
    -1.12261545522e+08,
    -5.15977104690e+08,
    -1.39196443667e+09,
    -2.57034018403e+09,
    -5.17963297773e+09,
    -8.64929063087e+09,
    4.94656250936e+10,
    2.27970966890e+11,
    -5.31973428128e+11,
    -4.09650075534e+12,
    -5.64410925503e+12,
};
// Enthalpy of air as an ideal gas, kJ/kg, of 1 kJ/kg and more; off by 2.7e-06.
inline constexpr std::array<double, 8> kAirEnthalpy{
    2.87823185923e-01,
    -2.74160801089e+02,
    2.75406533997e+02,
    -2.78470383379e+02,
    2.82627623162e+02,
    -2.92544300879e+02,
    3.55111841314e+02,
    -3.64734342476e+02,
};
// Enthalpy of vapour as an ideal gas, kJ/kg; off by 8.5e-08.
inline constexpr std::array<double, 8> kVapourEnthalpy{
    2.50149048535e+03,
    -5.07814150807e+02,
    5.14717889106e+02,
    -5.30051616691e+02,
    5.50523966226e+02,
    -5.80646708731e+02,
    7.31979843922e+02,
    -7.81240791428e+02,
};
// Molar volume of ice, cm3/mol, -60..0 degC; off by 3.4e-06.
inline constexpr std::array<double, 4> kIceVolume{
    1.96518007155e+01,
    -8.52408329717e-01,
    1.13008062145e+00,
    -8.15770622177e-01,
};
// Molar volume of liquid water, cm3/mol, 10..100 degC; off by 4.5e-06.
inline constexpr std::array<double, 5> kLiquidVolume{
    1.80198605472e+01,
    3.72021863652e-01,
    1.23080441948e+01,
    1.41197237281e+01,
    5.15721949166e+01,
};
// Henry's constant of air in water, 1/GPa, 10..100 degC; off by 5.9e-06.
inline constexpr std::array<double, 7> kHenry{
    2.25866545927e-01,
    1.51491413417e+00,
    7.53191382692e+00,
    2.50992504082e+01,
    6.32541154897e+01,
    9.98443529713e+01,
    8.30507617077e+01,
};
// Enthalpy of liquid water at saturation, kJ/kg, of 10 kJ/kg and more, 0.01..100 degC; off by 3.6e-05.
inline constexpr std::array<double, 6> kLiquidEnthalpy{
    -3.19461168287e-06,
    -1.15284079662e+03,
    1.01793529363e+03,
    -1.83153256421e+03,
    -1.08358862417e+03,
    -5.42947665880e+03,
};
// of ice, -60..0.01 degC; off by 3.3e-05.
inline constexpr std::array<double, 5> kIceEnthalpy{
    -3.33420900210e+02,
    -5.77742765628e+02,
    8.99185637548e+02,
    -1.23726385220e+03,
    1.01786773112e+03,
};
// ln of the sublimation pressure over 611.657 Pa, -100..0.01 degC; off by 3.8e-09.
inline constexpr std::array<double, 9> kSublimation{
    3.81718653837e-09,
    -2.24953590406e+01,
    -2.15679295882e-01,
    7.77243283142e-01,
    -1.02456230582e+00,
    1.09967869372e+00,
    -9.63070202745e-01,
    5.88361798326e-01,
    -1.77383475228e-01,
};
// clang-format on

}  // namespace zandrell::real_air
