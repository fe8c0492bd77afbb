#include "canvas/label_placer.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace zandrell {
namespace {

// All in ems.
constexpr double kTextHeight = 1.1;
constexpr double kTextGap = 0.4;   // between two texts side by side
constexpr double kLineGap = 0.12;  // between a text and a line that stays clear
constexpr double kReachX = 14, kReachY = 6;
constexpr double kStepX = 0.5, kStepY = 0.25;
constexpr double kFar = 0.8;  // a gap that breaks the sight of what belongs together
// How far a number goes out of the way of a line, and of another text: a hair, else it is left out.
constexpr double kNumberReach = 3, kCrowdedNumberReach = 0.4;
constexpr double kSoftReach = 3;     // how far a text goes out of the way of a soft line
constexpr double kAlongCost = 0.35;  // moves along the own line keep label and line together

struct Offset {
    double x, y, cost;
};

// All moves within reach, the cheapest first.
std::vector<Offset> Moves(double cost_x, double cost_y) {
    std::vector<Offset> moves;
    const int columns = static_cast<int>(kReachX / kStepX),
              rows = static_cast<int>(kReachY / kStepY);
    for (int row = -rows; row <= rows; ++row) {
        for (int column = -columns; column <= columns; ++column) {
            const double x = column * kStepX, y = row * kStepY;
            moves.push_back({x, y, std::hypot(cost_x * x, cost_y * y)});
        }
    }
    std::stable_sort(moves.begin(), moves.end(),
                     [](const Offset& a, const Offset& b) { return a.cost < b.cost; });
    return moves;
}

const std::vector<Offset>& MovesOf(const WantedLabel& label) {
    static const std::vector<Offset> all_around = Moves(1, 1);
    static const std::vector<Offset> level = Moves(kAlongCost, 1);
    static const std::vector<Offset> upright = Moves(1, kAlongCost);
    if (label.role != TextRole::ExtensionLabel) return all_around;
    return std::abs(label.along_x) >= std::abs(label.along_y) ? level : upright;
}

// Who moves least chooses first.
int Turn(TextRole role) {
    switch (role) {
        case TextRole::AxisNumber:
            return 0;
        case TextRole::AxisTitle:
            return 1;
        case TextRole::CurveLabel:
            return 2;
        case TextRole::ExtensionLabel:
            return 3;
        case TextRole::MarkLabel:
            break;
    }
    return 4;
}

// A label finds its mark again best on one of its sides, so these are tried before all else: right
// of it as wanted, then left, each at some heights.
std::vector<Offset> SidesOf(const WantedLabel& label, double width, double em) {
    if (label.role != TextRole::MarkLabel) return {};
    const double gap = (label.left - label.anchor_x) / em + kTextGap;
    std::vector<Offset> sides;
    for (const double x : {0.0, -width - gap, -width - 2 * gap}) {
        for (const double y : {0.0, 0.5, -0.75, -1.5, 1.0}) sides.push_back({x, y, 0});
    }
    return sides;
}

// The shortest line from what a text belongs to.
ClearLine LeaderOf(const WantedLabel& label, const LabelBox& box) {
    return {label.anchor_x, label.anchor_y, std::clamp(label.anchor_x, box.left, box.right),
            std::clamp(label.anchor_y, box.top, box.bottom)};
}

double GapTo(const WantedLabel& label, const LabelBox& box) {
    const ClearLine leader = LeaderOf(label, box);
    return std::hypot(leader.x2 - leader.x1, leader.y2 - leader.y1);
}

// Whether one of the lines lies between a text and what it belongs to.
bool IsCutOff(const WantedLabel& label, const LabelBox& box, const std::vector<ClearLine>& lines) {
    const ClearLine leader = LeaderOf(label, box);
    const auto side = [](const ClearLine& line, double x, double y) {
        return (line.x2 - line.x1) * (y - line.y1) - (line.y2 - line.y1) * (x - line.x1);
    };
    return std::any_of(lines.begin(), lines.end(), [&](const ClearLine& line) {
        return side(line, leader.x1, leader.y1) * side(line, leader.x2, leader.y2) < 0 &&
               side(leader, line.x1, line.y1) * side(leader, line.x2, line.y2) < 0;
    });
}

template <class Item>
bool None(const std::vector<Item>& items, const LabelBox& box,
          bool (*meets)(const Item&, const LabelBox&)) {
    return std::none_of(items.begin(), items.end(),
                        [&](const Item& item) { return meets(item, box); });
}
bool BoxMeets(const LabelBox& other, const LabelBox& box) { return box.Overlaps(other); }
bool LineMeets(const ClearLine& line, const LabelBox& box) { return line.Crosses(box); }

}  // namespace

bool ClearLine::Crosses(const LabelBox& box) const {
    double enter = 0, leave = 1;
    const auto within = [&](double direction, double distance) {
        if (direction == 0) return distance > 0;
        const double at = distance / direction;
        if (direction < 0) {
            enter = std::max(enter, at);
        } else {
            leave = std::min(leave, at);
        }
        return enter < leave;
    };
    return within(x1 - x2, x1 - box.left) && within(x2 - x1, box.right - x1) &&
           within(y1 - y2, y1 - box.top) && within(y2 - y1, box.bottom - y1);
}

LabelPlacer::LabelPlacer(MeasureWidth measure, double em, LabelBox surface)
    : measure_(std::move(measure)), em_(em), surface_(surface) {}

LabelBox LabelPlacer::BoxOf(const WantedLabel& label) const {
    const double half = kTextHeight / 2 * em_;
    return {label.left, label.middle - half, label.left + measure_(label.text),
            label.middle + half};
}

LabelPlacer::Neighbours LabelPlacer::Near(const LabelBox& box) const {
    const LabelBox reach{box.left - (kReachX + 1) * em_, box.top - (kReachY + 1) * em_,
                         box.right + (kReachX + 1) * em_, box.bottom + (kReachY + 1) * em_};
    Neighbours near;
    std::copy_if(boxes_.begin(), boxes_.end(), std::back_inserter(near.boxes),
                 [&](const LabelBox& other) { return reach.Overlaps(other); });
    const auto crosses = [&](const ClearLine& line) { return line.Crosses(reach); };
    std::copy_if(lines_.begin(), lines_.end(), std::back_inserter(near.lines), crosses);
    std::copy_if(soft_lines_.begin(), soft_lines_.end(), std::back_inserter(near.soft_lines),
                 crosses);
    return near;
}

PlacedLabel LabelPlacer::PlaceOne(const WantedLabel& label) const {
    const LabelBox wanted = BoxOf(label);
    const bool is_number = label.role == TextRole::AxisNumber;
    const Neighbours near = Near(wanted);
    const double far_from = GapTo(label, wanted) + kFar * em_;
    const auto at = [&](const Offset& move) {
        const LabelBox box = wanted.Moved(move.x * em_, move.y * em_);
        return PlacedLabel{box, true, !is_number && GapTo(label, box) > far_from};
    };
    const auto is_alone = [&](const LabelBox& box) {
        const double gap = kTextGap * em_;
        return None(near.boxes, {box.left - gap, box.top, box.right + gap, box.bottom}, BoxMeets);
    };
    const auto is_free = [&](const PlacedLabel& placed) {
        const LabelBox& box = placed.box;
        return surface_.Holds(box) && is_alone(box) &&
               None(near.lines, box.Grown(kLineGap * em_), LineMeets) &&
               !(placed.far && IsCutOff(label, box, near.lines));
    };
    const auto is_clear = [&](const PlacedLabel& placed) {
        return None(near.soft_lines, placed.box, LineMeets);
    };
    for (const Offset& move : SidesOf(label, (wanted.right - wanted.left) / em_, em_)) {
        const PlacedLabel placed = at(move);
        if (is_free(placed) && is_clear(placed)) return placed;
    }
    PlacedLabel fallback{wanted,
                         label.role == TextRole::MarkLabel || label.role == TextRole::AxisTitle};
    const double number_reach = is_alone(wanted) ? kNumberReach : kCrowdedNumberReach;
    const double reach = is_number ? number_reach : std::hypot(kReachX, kReachY);
    bool found = false;
    for (const Offset& move : MovesOf(label)) {
        if (move.cost > (found ? kSoftReach : reach)) break;
        const PlacedLabel placed = at(move);
        if (!is_free(placed)) continue;
        if (is_clear(placed)) return placed;
        if (!found) fallback = placed;
        found = true;
    }
    return fallback;
}

std::vector<PlacedLabel> LabelPlacer::Place(const std::vector<WantedLabel>& labels) {
    std::vector<std::size_t> order(labels.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
        return Turn(labels[a].role) < Turn(labels[b].role);
    });
    std::vector<PlacedLabel> placed(labels.size());
    for (const std::size_t i : order) {
        placed[i] = PlaceOne(labels[i]);
        if (placed[i].shown) boxes_.push_back(placed[i].box);
    }
    return placed;
}

}  // namespace zandrell
