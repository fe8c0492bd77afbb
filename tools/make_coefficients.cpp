// Makes qvdata.dat, the coefficient file of the humid-air kernel, from published constants and
// tables: make_coefficients SOURCE_FOLDER OUTPUT_FILE. What the constants do not give is fitted
// here by least squares, and the largest deviations are printed.

#include <Eigen/Dense>
#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

#include "base/delimited_text.h"
#include "base/number_text.h"
#include "kernel/steam.h"
#include "kernel/water_air_tables.h"

namespace zandrell {
namespace {

using Rows = std::map<std::string, std::vector<double>>;
using Vector = Eigen::Matrix<long double, Eigen::Dynamic, 1>;
using Matrix = Eigen::Matrix<long double, Eigen::Dynamic, Eigen::Dynamic>;

struct HeatCapacityTable {
    std::vector<double> t, vapour, air;  // degC, kJ/(kg K)
};

std::ifstream OpenSource(const std::filesystem::path& path) {
    std::ifstream file(path);
    if (!file) throw std::runtime_error("cannot read " + path.string());
    return file;
}

// A line's items from position `from` on. Throws on one that is no number.
std::vector<double> NumbersOf(const std::string& line, std::size_t from) {
    std::vector<double> numbers;
    while (from < line.size()) {
        const auto end = std::min(line.find(',', from), line.size());
        double value = 0;
        const auto [stop, error] = std::from_chars(line.data() + from, line.data() + end, value);
        if (error != std::errc() || stop != line.data() + end) {
            throw std::runtime_error("not a row of numbers: " + line);
        }
        numbers.push_back(value);
        from = end + 1;
    }
    return numbers;
}

Rows ReadConstants(const std::filesystem::path& path) {
    std::ifstream file = OpenSource(path);
    Rows rows;
    for (std::string line; std::getline(file, line);) {
        if (line.empty() || line[0] == '#') continue;
        const auto comma = std::min(line.find(','), line.size());
        rows[line.substr(0, comma)] = NumbersOf(line, comma + 1);
    }
    return rows;
}

HeatCapacityTable ReadHeatCapacities(const std::filesystem::path& path) {
    std::ifstream file = OpenSource(path);
    HeatCapacityTable table;
    std::string line;
    std::getline(file, line);  // the names of the columns
    while (std::getline(file, line)) {
        const auto numbers = NumbersOf(line, 0);
        if (numbers.size() != 3) throw std::runtime_error("not three columns: " + line);
        table.t.push_back(numbers[0]);
        table.vapour.push_back(numbers[1]);
        table.air.push_back(numbers[2]);
    }
    return table;
}

const std::vector<double>& Row(const Rows& rows, const std::string& name, std::size_t length) {
    const auto row = rows.find(name);
    if (row == rows.end() || row->second.size() != length) {
        throw std::runtime_error("row " + name + " is missing or of another length");
    }
    return row->second;
}

// Twelve significant digits: far finer than any fit, and coarse enough that every machine that
// makes the file writes the same digits.
double Rounded(long double value) {
    std::array<char, 40> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(),
                                   static_cast<double>(value), std::chars_format::scientific, 11);
    double rounded = 0;
    std::from_chars(text.data(), end.ptr, rounded);
    return rounded;
}

// Weighted least squares: the coefficients of the polynomial in x, lowest first. Solved in the
// variable (x - centre) / half_width, where the equations are well conditioned, then expanded.
std::vector<double> FitPolynomial(const std::vector<double>& x, const std::vector<double>& y,
                                  const std::vector<double>& weight, Eigen::Index degree) {
    const auto [low, high] = std::minmax_element(x.begin(), x.end());
    const long double centre = (*low + *high) / 2.0L, half_width = (*high - *low) / 2.0L;
    const auto points = static_cast<Eigen::Index>(x.size());
    Matrix equations(points, degree + 1);
    Vector right(points);
    for (Eigen::Index i = 0; i < points; ++i) {
        const auto k = static_cast<std::size_t>(i);
        long double term = weight[k];
        for (Eigen::Index j = 0; j <= degree; ++j, term *= (x[k] - centre) / half_width) {
            equations(i, j) = term;
        }
        right(i) = weight[k] * static_cast<long double>(y[k]);
    }
    const Vector scaled = equations.colPivHouseholderQr().solve(right);
    Vector expanded = Vector::Zero(degree + 1);
    for (Eigen::Index j = degree; j >= 0; --j) {  // Horner with polynomials for numbers
        Vector next = Vector::Zero(degree + 1);
        next.tail(degree) = expanded.head(degree) / half_width;
        next -= expanded * (centre / half_width);
        next(0) += scaled(j);
        expanded = next;
    }
    std::vector<double> coefficients;
    for (const long double c : expanded) coefficients.push_back(Rounded(c));
    return coefficients;
}

double EvaluatePolynomial(const std::vector<double>& coefficients, double x) {
    double sum = 0;
    for (std::size_t i = coefficients.size(); i-- > 0;) sum = sum * x + coefficients[i];
    return sum;
}

// The chart's temperatures count most.
std::vector<double> FitHeatCapacity(const std::vector<double>& t, const std::vector<double>& cp) {
    constexpr double kChartEnd = 100, kChartWeight = 10;
    std::vector<double> weights;
    weights.reserve(t.size());
    for (const double at : t) weights.push_back(at <= kChartEnd ? kChartWeight : 1);
    return FitPolynomial(t, cp, weights, 8);
}

// 1 / theta as a polynomial in ln(p / Pa) along the saturation line, from the triple point to a
// little above 8.5 bar.
std::vector<double> FitBoilingStart(const WaterAirTables& tables) {
    constexpr double kTriplePoint = 273.16, kHighest = 448, kStep = 0.5;  // K
    std::vector<double> log_pressure, reciprocal, weights;
    for (double T = kTriplePoint; T <= kHighest; T += kStep) {
        const double theta = T / tables.RefTemp;
        log_pressure.push_back(
            std::log(SaettigungsDruck(tables, theta, kReducedPressure) * tables.RefDruck));
        reciprocal.push_back(1 / theta);
        weights.push_back(1);
    }
    return FitPolynomial(log_pressure, reciprocal, weights, 4);
}

// The file's text in the order in which the kernel reads it; the grouping is for people only.
class CoefficientText {
  public:
    explicit CoefficientText(const Rows& rows) : rows_(rows) {}

    void Line(const std::string& name, std::size_t length) { Line(Row(rows_, name, length)); }
    void Line(const std::vector<double>& numbers) {
        for (const double number : numbers) writer_.Number(number);
        writer_.EndLine();
    }
    // A row of exponents: how many there are, then the exponents, then zeros up to `width`.
    void Exponents(const std::string& name, std::size_t count, std::size_t width) {
        std::vector<double> line{static_cast<double>(count)};
        const auto& exponents = Row(rows_, name, count);
        line.insert(line.end(), exponents.begin(), exponents.end());
        line.resize(width);
        Line(line);
    }
    const std::string& Result() const { return writer_.Result(); }

  private:
    const Rows& rows_;
    DelimitedWriter writer_;
};

std::string CoefficientFile(const Rows& rows, const std::vector<double>& boiling_start,
                            const std::vector<double>& vapour, const std::vector<double>& air) {
    constexpr std::array<std::size_t, 8> kTerms{2, 3, 2, 2, 3, 2, 2, 2};
    constexpr std::array<std::size_t, 3> kDenominatorTerms{1, 1, 2};
    CoefficientText text(rows);
    text.Line("saturation_line", 9);
    text.Line(boiling_start);
    text.Line("boundary_line", 3);
    text.Line("ideal_gas", 6);
    for (std::size_t i = 0; i < 8; ++i) text.Line("row_" + std::to_string(i + 1), kTerms[i]);
    text.Line("boundary_term", 7);
    for (std::size_t i = 0; i < 3; ++i) {
        text.Line("denominator_" + std::to_string(i + 6), kDenominatorTerms[i]);
    }
    text.Line("scalars", 5);
    text.Line(std::vector<double>{0, 0});  // two numbers that nobody uses
    for (std::size_t i = 0; i < 8; ++i) {
        text.Exponents("z_" + std::to_string(i + 1), kTerms[i], 4);
    }
    for (std::size_t i = 0; i < 3; ++i) {
        text.Exponents("x_" + std::to_string(i + 6), kDenominatorTerms[i], 3);
    }
    for (std::size_t i = 0; i < vapour.size(); ++i) text.Line(std::vector{vapour[i], air[i]});
    return text.Result();
}

void PrintDeviation(const char* what, const std::vector<double>& t, const std::vector<double>& cp,
                    const std::vector<double>& coefficients, double t_end) {
    double largest = 0;
    for (std::size_t i = 0; i < t.size() && t[i] <= t_end; ++i) {
        const double deviation = EvaluatePolynomial(coefficients, t[i]) / cp[i] - 1;
        largest = std::max(largest, std::abs(deviation));
    }
    std::printf("%s, -50..%g degC: %.5f %%\n", what, t_end, 100 * largest);
}

void PrintBoilingStart(const WaterAirTables& tables, const std::vector<double>& coefficients) {
    double largest = 0;
    for (double T = 273.16; T <= 446.2; T += 0.1) {
        const double theta = T / tables.RefTemp;
        const double pressure = SaettigungsDruck(tables, theta, kReducedPressure) * tables.RefDruck;
        const double start = tables.RefTemp / EvaluatePolynomial(coefficients, std::log(pressure));
        largest = std::max(largest, std::abs(start - T));
    }
    std::printf("start of the boiling temperature, 0.01 degC..8.5 bar: %.5f K\n", largest);
}

// The saturation line alone, as the kernel takes it.
WaterAirTables SaturationTables(const Rows& rows) {
    WaterAirTables tables;
    const auto& line = Row(rows, "saturation_line", 9);
    std::copy(line.begin(), line.end(), tables.KSatt.begin() + 1);
    const auto& scalars = Row(rows, "scalars", 5);
    tables.RefDruck = scalars[2];
    tables.RefTemp = scalars[4];
    return tables;
}

void MakeCoefficients(const std::filesystem::path& sources, const std::filesystem::path& output) {
    const Rows rows = ReadConstants(sources / "formulation-1967.csv");
    const HeatCapacityTable table = ReadHeatCapacities(sources / "ideal-gas-cp.csv");
    const WaterAirTables saturation = SaturationTables(rows);
    const auto start = FitBoilingStart(saturation);
    const auto vapour = FitHeatCapacity(table.t, table.vapour);
    const auto air = FitHeatCapacity(table.t, table.air);
    std::ofstream file(output, std::ios::binary);
    file << CoefficientFile(rows, start, vapour, air);
    if (!file.flush()) throw std::runtime_error("cannot write " + output.string());
    for (const double t_end : {100.0, 800.0}) {
        PrintDeviation("specific heat of water vapour", table.t, table.vapour, vapour, t_end);
        PrintDeviation("specific heat of dry air", table.t, table.air, air, t_end);
    }
    PrintBoilingStart(saturation, start);
}

}  // namespace
}  // namespace zandrell

int main(int argument_count, char** arguments) {
    if (argument_count != 3) {
        std::cerr << "usage: make_coefficients SOURCE_FOLDER OUTPUT_FILE\n";
        return 2;
    }
    try {
        zandrell::MakeCoefficients(arguments[1], arguments[2]);
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "make_coefficients: " << error.what() << '\n';
        return 1;
    }
}
