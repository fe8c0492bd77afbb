#pragma once

#include <initializer_list>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "base/captions.h"
#include "chart/chart_settings.h"
#include "forms/control.h"

namespace zandrell {

// The texts that some fields had when a calculation took them, and what else it rested on.
class TakenTexts {
  public:
    // The fields outlive the record.
    TakenTexts(std::initializer_list<const TextField*> fields);

    // `besides` tells whatever else the calculation rests on: mode, pressure.
    void Take(std::string besides = {});
    void Forget() { known_ = false; }
    // Whether all still read so; false before anything was taken.
    bool Hold(const std::string& besides = {}) const;
    // One of the fields; true before anything was taken.
    bool Holds(const TextField& field) const;

  private:
    std::vector<std::pair<const TextField*, std::string>> texts_;
    std::string besides_;
    bool known_ = false;
};

// Why a value is not used, or what is used in its place: a message and what is filled in.
struct Refusal {
    Caption reason;
    std::string least{}, most{};
};
Refusal CountsAs(std::string_view percent);

// Marks fields and figures: what is not used and why, what is typed and not yet confirmed, what
// belongs to inputs that have changed since.
class FieldNotes {
  public:
    explicit FieldNotes(const Captions& captions) : captions_(captions) {}

    void MarkUsed(TextField& field) const;
    void MarkRefused(TextField& field, const Refusal& refusal) const;
    void MarkPending(TextField& field) const;
    void MarkFigures(std::initializer_list<Control*> figures, bool stale) const;

  private:
    const Captions& captions_;
};

// Why a text is not used, if it is not: for any number, for a temperature on the chart, for a
// relative humidity in per cent, for a flow.
std::optional<Refusal> AgainstNumber(const std::string& text);
std::optional<Refusal> AgainstTemperature(const std::string& text, const ChartSettings& settings);
std::optional<Refusal> AgainstHumidity(const std::string& text);
std::optional<Refusal> AgainstFlow(const std::string& text);

}  // namespace zandrell
