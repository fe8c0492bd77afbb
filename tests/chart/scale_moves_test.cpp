#include "chart/scale_moves.h"

#include <gtest/gtest.h>

namespace zandrell {
namespace {

struct Kind {
    Convention convention;
    int kind;
    double least_x;
};

class ScaleMoves : public testing::TestWithParam<Kind> {
  protected:
    ScaleMoves() {
        settings_.convention = GetParam().convention;
        settings_.DiagrammArt = GetParam().kind;
        settings_.ChartXMin = GetParam().least_x;
        scale_.CarrierFaktor = 3.9;
        ApplyBaseScale(settings_, scale_);
        // The suite keeps its origin in whole units, on the Carrier chart turned by the aspect.
        tolerance_ = settings_.convention == Convention::Exact ? 1e-9 : 0.51 * 3.9;
    }

    void ExpectAt(const ChartScale& scale, double x, double t, CanvasPoint place) const {
        const CanvasPoint point = scale.PointOf(x, t);
        EXPECT_NEAR(point.x, place.x, tolerance_);
        EXPECT_NEAR(point.y, place.y, tolerance_);
    }

    ChartSettings settings_;
    ChartScale scale_;
    double tolerance_;
};

TEST_P(ScaleMoves, WhatLiesUnderThePointerStaysThere) {
    const CanvasPoint place = scale_.PointOf(12, 25);
    ChartScale scale = scale_;
    for (int notch = 0; notch < 5; ++notch) {
        scale = Magnified(scale, place, 1.2);
        tolerance_ = settings_.convention == Convention::Exact ? 1e-9 : (notch + 1) * 3.9;
        ExpectAt(scale, 12, 25, place);
    }
    const double wide = scale.PointOf(13, 26).x - scale.PointOf(12, 25).x;
    EXPECT_NEAR(wide / (scale_.PointOf(13, 26).x - place.x), 1.2 * 1.2 * 1.2 * 1.2 * 1.2, 1e-9);
    EXPECT_NEAR(Magnification(scale, settings_), 1.2 * 1.2 * 1.2 * 1.2 * 1.2, 1e-9);
    EXPECT_TRUE(scale.zoomed);
}

TEST_P(ScaleMoves, TheChartFollowsTheHand) {
    const CanvasPoint from = scale_.PointOf(12, 25), to{from.x + 87.3, from.y - 41.9};
    ExpectAt(Shifted(scale_, from, to), 12, 25, to);
    EXPECT_EQ(Magnification(Shifted(scale_, from, to), settings_), 1);
    EXPECT_TRUE(ShowsTheRange(scale_, settings_));
    EXPECT_FALSE(ShowsTheRange(Shifted(scale_, {0, 0}, {4000, 0}), settings_));
    EXPECT_FALSE(ShowsTheRange(Shifted(scale_, {0, 0}, {0, -4000}), settings_));
}

INSTANTIATE_TEST_SUITE_P(Kinds, ScaleMoves,
                         testing::Values(Kind{Convention::Suite, kMollier, 0},
                                         Kind{Convention::Suite, kMollier, 5},
                                         Kind{Convention::Suite, kCarrier, 0},
                                         Kind{Convention::Exact, kMollier, 5},
                                         Kind{Convention::Exact, kCarrier, 0}));

}  // namespace
}  // namespace zandrell
