// Makes the fits of the real-air model from tabulated virial coefficients and the equation of the
// sublimation pressure: make_real_air SOURCE_TABLE LIQUID_TABLE OUTPUT_HEADER. The largest
// deviations are printed, and stand beside each fit.

#include <Eigen/Dense>
#include <cmath>
#include <cstdio>
#include <exception>
#include <fstream>
#include <functional>
#include <iostream>
#include <map>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using Columns = std::map<std::string, std::vector<double>>;

constexpr double kTriplePoint = 273.16, kKelvinOffset = 273.15;  // K

std::vector<std::string> Cells(const std::string& line) {
    std::vector<std::string> cells;
    std::istringstream stream(line);
    for (std::string cell; std::getline(stream, cell, ',');) cells.push_back(cell);
    return cells;
}

Columns ReadTable(const std::string& path) {
    std::ifstream file(path);
    Columns columns;
    std::vector<std::string> names;
    for (std::string line; std::getline(file, line);) {
        if (line.empty() || line[0] == '#') continue;
        const auto cells = Cells(line);
        if (names.empty()) {
            names = cells;
            continue;
        }
        if (cells.size() != names.size())
            throw std::runtime_error("a row of another length: " + line);
        for (std::size_t i = 0; i < names.size(); ++i) {
            columns[names[i]].push_back(std::stod(cells[i]));
        }
    }
    if (columns.empty()) throw std::runtime_error("no table in " + path);
    return columns;
}

const std::vector<double>& Column(const Columns& columns, const std::string& name) {
    const auto column = columns.find(name);
    if (column == columns.end()) throw std::runtime_error("no column " + name);
    return column->second;
}

// The variable of all fits: 273.16 K / T - 1, in which virial coefficients are nearly polynomials.
double Variable(double t) { return kTriplePoint / (t + kKelvinOffset) - 1; }

// What a fit is held to: values, and slopes T dB/dT where they are known.
struct Samples {
    std::vector<double> t, values, slopes;
};

struct Fit {
    std::vector<double> coefficients;  // by powers of the variable
    double residual = 0;               // the largest, relative to the value
};

double Evaluate(const std::vector<double>& coefficients, double t) {
    double sum = 0;
    for (std::size_t i = coefficients.size(); i-- > 0;) sum = sum * Variable(t) + coefficients[i];
    return sum;
}

// Least squares of the deviations relative to the values, or to `least` where those are smaller.
Fit Polynomial(const Samples& samples, int degree, double least = 0) {
    const auto points = static_cast<Eigen::Index>(samples.t.size());
    const bool sloped = !samples.slopes.empty();
    Eigen::MatrixXd equations = Eigen::MatrixXd::Zero(sloped ? 2 * points : points, degree + 1);
    Eigen::VectorXd right(equations.rows());
    for (Eigen::Index i = 0; i < points; ++i) {
        const auto at = static_cast<std::size_t>(i);
        const double w = Variable(samples.t[at]);
        const double weight = 1 / std::max(std::abs(samples.values[at]), least);
        double power = 1, before = 0;
        for (int k = 0; k <= degree; ++k, before = power, power *= w) {
            equations(i, k) = weight * power;
            // T d/dT = -(1 + w) d/dw
            if (sloped) equations(points + i, k) = -weight * (1 + w) * k * before;
        }
        right(i) = weight * samples.values[at];
        if (sloped) right(points + i) = weight * samples.slopes[at];
    }
    const Eigen::VectorXd solution = equations.colPivHouseholderQr().solve(right);
    Fit fit{{solution.begin(), solution.end()}, 0};
    for (std::size_t i = 0; i < samples.t.size(); ++i) {
        const double size = std::max(std::abs(samples.values[i]), least);
        const double deviation = Evaluate(fit.coefficients, samples.t[i]) - samples.values[i];
        fit.residual = std::max(fit.residual, std::abs(deviation) / size);
    }
    return fit;
}

// Sublimation pressure of ice by IAPWS (R14-08, 2011): ln(p / 611.657 Pa).
double LogSublimation(double t) {
    const double s = (t + kKelvinOffset) / kTriplePoint;
    return (-21.2144006 * std::pow(s, 0.00333333333) + 27.3203819 * std::pow(s, 1.20666667) -
            6.10598130 * std::pow(s, 1.70333333)) /
           s;
}

// Enthalpy of ice at saturation, kJ/kg: that of its vapour, less the heat of sublimation by
// Clapeyron's equation, T (v'' - v) dp/dT.
double IceEnthalpy(double t, const Fit& ideal, const Fit& B, const Fit& volume) {
    constexpr double kGasConstant = 8.314472, kMolarMass = 18.015268, kNear = 1e-3;
    constexpr double kTriplePressure = 611.657, kCubicMetrePerCm3 = 1e-6;
    const double T = t + kKelvinOffset, p = kTriplePressure * std::exp(LogSublimation(t));
    const double slope = p * (LogSublimation(t + kNear) - LogSublimation(t - kNear)) / (2 * kNear);
    const double b = Evaluate(B.coefficients, t) * kCubicMetrePerCm3;
    const double b_slope =
        (Evaluate(B.coefficients, t + kNear) - Evaluate(B.coefficients, t - kNear)) / (2 * kNear) *
        kCubicMetrePerCm3;
    const double vapour = kGasConstant * T / p + b;
    const double ice = Evaluate(volume.coefficients, t) * kCubicMetrePerCm3;
    return Evaluate(ideal.coefficients, t) +
           (p * (b - T * b_slope) - T * (vapour - ice) * slope) / kMolarMass;
}

Samples OfEquation(const std::function<double(double)>& equation, double low, double high) {
    Samples samples;
    for (double t = low; t <= high; t += 0.5) {
        samples.t.push_back(t);
        samples.values.push_back(equation(t));
    }
    return samples;
}

// Of a column from `low` to `high` degC; with slopes in the column of that name, if any.
Samples OfTable(const Columns& table, const std::string& name, const std::string& slope = {},
                double low = -60, double high = 100) {
    const auto& t = Column(table, "t");
    Samples samples;
    for (std::size_t i = 0; i < t.size(); ++i) {
        if (t[i] < low || t[i] > high) continue;
        samples.t.push_back(t[i]);
        samples.values.push_back(Column(table, name)[i]);
        if (!slope.empty()) samples.slopes.push_back(Column(table, slope)[i]);
    }
    return samples;
}

void WriteFit(std::ostream& header, const char* name, const char* what, const Fit& fit) {
    char text[64];
    std::snprintf(text, sizeof text, "%.1e", fit.residual);
    header << "// " << what << "; off by " << text << ".\n"
           << "inline constexpr std::array<double, " << fit.coefficients.size() << "> " << name
           << "{\n";
    for (const double c : fit.coefficients) {
        std::snprintf(text, sizeof text, "%.11e", c);
        header << "    " << text << ",\n";
    }
    header << "};\n";
    std::printf("%-16s %.2e\n", name, fit.residual);
}

void MakeHeader(const std::string& source, const std::string& liquid_source,
                const std::string& output) {
    const Columns table = ReadTable(source), liquid = ReadTable(liquid_source);
    std::ofstream header(output, std::ios::binary);
    header
        << "#pragma once\n\n#include <array>\n\n"
           "// Fits of the real-air model, made by tools/make_real_air.cpp from\n"
           "// data/properties/real-air.csv, data/properties/saturated-water.csv and the equation\n"
           "// of the sublimation pressure: polynomials in 273.16 K / T - 1. The figure behind "
           "each is\n"
           "// the largest deviation relative to the value.\n"
           "namespace zandrell::real_air {\n\n// clang-format off\n";
    const auto virial = [&](const char* name, const char* column, int degree, const char* what) {
        const auto samples = OfTable(table, column, std::string("T") + column);
        WriteFit(header, name, what, Polynomial(samples, degree));
    };
    virial("kBaa", "B_aa", 6, "Second virial coefficient of air, cm3/mol, -60..100 degC");
    virial("kBaw", "B_aw", 6, "of air with water");
    virial("kBww", "B_ww", 9, "of water");
    virial("kCaaa", "C_aaa", 6, "Third virial coefficient of air, cm6/mol2, -60..100 degC");
    virial("kCaaw", "C_aaw", 7, "of two of air with water");
    virial("kCaww", "C_aww", 9, "of air with two of water");
    virial("kCwww", "C_www", 11, "of water");
    WriteFit(header, "kAirEnthalpy", "Enthalpy of air as an ideal gas, kJ/kg, of 1 kJ/kg and more",
             Polynomial(OfTable(table, "h0_a"), 7, 1));
    WriteFit(header, "kVapourEnthalpy", "Enthalpy of vapour as an ideal gas, kJ/kg",
             Polynomial(OfTable(table, "h0_w"), 7));
    WriteFit(header, "kIceVolume", "Molar volume of ice, cm3/mol, -60..0 degC",
             Polynomial(OfTable(table, "V_c", {}, -60, 0), 3));
    WriteFit(header, "kLiquidVolume", "Molar volume of liquid water, cm3/mol, 10..100 degC",
             Polynomial(OfTable(table, "V_c", {}, 10, 100), 4));
    WriteFit(header, "kHenry", "Henry's constant of air in water, 1/GPa, 10..100 degC",
             Polynomial(OfTable(table, "beta", {}, 10, 100), 6));
    WriteFit(header, "kLiquidEnthalpy",
             "Enthalpy of liquid water at saturation, kJ/kg, of 10 kJ/kg and more, 0.01..100 degC",
             Polynomial(OfTable(liquid, "h", {}, 0, 100), 5, 10));
    const Fit ideal = Polynomial(OfTable(table, "h0_w"), 7);
    const Fit B = Polynomial(OfTable(table, "B_ww", "TB_ww"), 9);
    const Fit volume = Polynomial(OfTable(table, "V_c", {}, -60, 0), 3);
    const auto ice = [&](double t) { return IceEnthalpy(t, ideal, B, volume); };
    WriteFit(header, "kIceEnthalpy", "of ice, -60..0.01 degC",
             Polynomial(OfEquation(ice, -60, 0.01), 4));
    // The logarithm is 0 at the triple point, where its deviation counts as it stands.
    WriteFit(header, "kSublimation",
             "ln of the sublimation pressure over 611.657 Pa, -100..0.01 degC",
             Polynomial(OfEquation(LogSublimation, -100, 0.01), 8, 1));
    header << "// clang-format on\n\n}  // namespace zandrell::real_air\n";
    if (!header.flush()) throw std::runtime_error("cannot write " + output);
}

}  // namespace

int main(int argument_count, char** arguments) {
    if (argument_count != 4) {
        std::cerr << "usage: make_real_air SOURCE_TABLE LIQUID_TABLE OUTPUT_HEADER\n";
        return 2;
    }
    try {
        MakeHeader(arguments[1], arguments[2], arguments[3]);
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "make_real_air: " << error.what() << '\n';
        return 1;
    }
}
