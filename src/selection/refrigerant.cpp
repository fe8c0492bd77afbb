#include "selection/refrigerant.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "base/number_text.h"
#include "base/text_encoding.h"

namespace zandrell {
namespace {

constexpr double kZeroCelsius = 273.15;  // K
constexpr std::size_t kLeastRows = 3;

constexpr std::array<double SaturationState::*, 8> kFigures = {
    &SaturationState::p_bubble,   &SaturationState::p_dew,     &SaturationState::h_liquid,
    &SaturationState::h_vapour,   &SaturationState::cp_liquid, &SaturationState::cp_vapour,
    &SaturationState::rho_liquid, &SaturationState::rho_vapour};

std::vector<double> Column(const std::vector<SaturationRow>& rows,
                           double SaturationState::*figure) {
    std::vector<double> column;
    column.reserve(rows.size());
    for (const auto& row : rows) column.push_back(row.state.*figure);
    return column;
}

std::vector<double> Temperatures(const std::vector<SaturationRow>& rows) {
    std::vector<double> column;
    column.reserve(rows.size());
    for (const auto& row : rows) column.push_back(row.t);
    return column;
}

std::vector<double> Logarithms(std::vector<double> values) {
    for (double& value : values) value = std::log(value);
    return values;
}

std::vector<std::string> CellsOf(std::string_view line) {
    std::vector<std::string> cells;
    while (true) {
        const auto comma = line.find(',');
        cells.push_back(Trimmed(line.substr(0, comma)));
        if (comma == std::string_view::npos) return cells;
        line.remove_prefix(comma + 1);
    }
}

struct TableRow {
    std::string name;
    double gwp = 0;
    SaturationRow row;
};

bool IsNumber(const std::string& cell) {
    return !cell.empty() && cell.find_first_not_of("0123456789.+-eE") == std::string::npos &&
           cell.find_first_of("0123456789") != std::string::npos;
}

std::optional<TableRow> ReadRow(std::string_view line) {
    const auto cells = CellsOf(line);
    if (cells.size() != kFigures.size() + 3 || cells[0].empty()) return std::nullopt;
    if (!std::all_of(cells.begin() + 1, cells.end(), IsNumber)) return std::nullopt;
    TableRow row{cells[0], ToDouble(cells[1]), {ToDouble(cells[2]), {}}};
    for (std::size_t i = 0; i < kFigures.size(); ++i) {
        row.row.state.*kFigures[i] = ToDouble(cells[i + 3]);
    }
    const bool pressures = row.row.state.p_bubble > 0 && row.row.state.p_dew > 0;
    return pressures ? std::optional(row) : std::nullopt;
}

}  // namespace

Refrigerant::Refrigerant(std::string name, double gwp, const std::vector<SaturationRow>& rows)
    : name_(std::move(name)),
      gwp_(gwp),
      temperatures_(Temperatures(rows)),
      ln_bubble_(Logarithms(Column(rows, &SaturationState::p_bubble))),
      ln_dew_(Logarithms(Column(rows, &SaturationState::p_dew))),
      h_liquid_(temperatures_, Column(rows, &SaturationState::h_liquid)),
      h_vapour_(temperatures_, Column(rows, &SaturationState::h_vapour)),
      cp_liquid_(temperatures_, Column(rows, &SaturationState::cp_liquid)),
      cp_vapour_(temperatures_, Column(rows, &SaturationState::cp_vapour)),
      rho_liquid_(temperatures_, Column(rows, &SaturationState::rho_liquid)),
      rho_vapour_(temperatures_, Column(rows, &SaturationState::rho_vapour)) {}

double Refrigerant::Pressure(const std::vector<double>& logarithms, double t) const {
    const auto above = std::upper_bound(temperatures_.begin() + 1, temperatures_.end() - 1, t);
    const auto high = static_cast<std::size_t>(above - temperatures_.begin());
    const auto inverse = [](double degrees) { return 1 / (degrees + kZeroCelsius); };
    const double low_end = inverse(temperatures_[high - 1]),
                 high_end = inverse(temperatures_[high]);
    const double share = (inverse(t) - low_end) / (high_end - low_end);
    return std::exp(logarithms[high - 1] + share * (logarithms[high] - logarithms[high - 1]));
}

std::optional<SaturationState> Refrigerant::At(double t) const {
    if (!(t >= LowestTemperature() && t <= HighestTemperature())) return std::nullopt;
    return SaturationState{
        Pressure(ln_bubble_, t), Pressure(ln_dew_, t), h_liquid_(t),   h_vapour_(t),
        cp_liquid_(t),           cp_vapour_(t),        rho_liquid_(t), rho_vapour_(t)};
}

std::optional<double> Refrigerant::BubbleTemperature(double pressure) const {
    constexpr int kHalvings = 60;
    double low = LowestTemperature(), high = HighestTemperature();
    if (!(pressure >= Pressure(ln_bubble_, low) && pressure <= Pressure(ln_bubble_, high))) {
        return std::nullopt;
    }
    for (int i = 0; i < kHalvings; ++i) {
        const double middle = (low + high) / 2;
        (Pressure(ln_bubble_, middle) < pressure ? low : high) = middle;
    }
    return (low + high) / 2;
}

std::vector<Refrigerant> ParseRefrigerants(std::string_view csv) {
    std::vector<Refrigerant> tables;
    std::string name;
    double gwp = 0;
    std::vector<SaturationRow> rows;
    const auto finish = [&] {
        if (rows.size() >= kLeastRows) tables.emplace_back(name, gwp, rows);
        rows.clear();
    };
    while (!csv.empty()) {
        const auto end = std::min(csv.find('\n'), csv.size());
        std::string_view line = csv.substr(0, end);
        csv.remove_prefix(std::min(end + 1, csv.size()));
        if (line.ends_with('\r')) line.remove_suffix(1);
        const auto row = ReadRow(line);
        if (!row) continue;
        if (row->name != name) {
            finish();
            name = row->name;
            gwp = row->gwp;
        }
        if (rows.empty() || row->row.t > rows.back().t) rows.push_back(row->row);
    }
    finish();
    return tables;
}

const Refrigerant* RefrigerantTables::Find(std::string_view name) const {
    const auto found = std::find_if(tables.begin(), tables.end(), [&](const Refrigerant& one) {
        return EqualIgnoringCase(one.Name(), name);
    });
    return found == tables.end() ? nullptr : &*found;
}

RefrigerantTables ReadRefrigerants(const DataFiles& files) {
    const FileText file = files.OpenForInput(kRefrigerantFile);
    return {file.status, ParseRefrigerants(file.text)};
}

}  // namespace zandrell
