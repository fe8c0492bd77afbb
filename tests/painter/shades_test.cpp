#include "painter/shades.h"

#include <gtest/gtest.h>

#include "canvas/palette.h"
#include "support/contrast.h"

namespace zandrell {
namespace {

std::uint32_t Rgb(const QColor& colour) { return colour.rgb() & 0xFFFFFFU; }

TEST(Shades, EveryLineAndTextStandsOutFromItsGround) {
    EXPECT_NEAR(Contrast(0x000000, 0xFFFFFF), 21, 1e-9);
    EXPECT_NEAR(Contrast(0x777777, 0xFFFFFF), 4.48, 0.005);  // a grey just too light for texts
    for (const int ground : {kWhite, kLightGreyValue, kBlack}) {
        const std::uint32_t behind = Rgb(ShadeFor(ground, StrokeRole::Ground, ground).colour);
        for (const ShadeRow& row : ShadeTable()) {
            if (row.role == StrokeRole::Ground) continue;
            // The scheme's own process colours write the labels of the marks too.
            const bool writes = row.role == StrokeRole::Text ||
                                (row.role == StrokeRole::Process && row.colour != kLightGreen);
            const Shade shade = ShadeFor(row.colour, row.role, ground);
            EXPECT_GE(Contrast(Rgb(shade.colour), behind),
                      writes ? kLeastTextContrast : kLeastLineContrast)
                << "number " << row.colour << " on ground " << ground;
        }
    }
}

TEST(Shades, CurvesStandOutFromTheGrid) {
    for (const int ground : {kWhite, kLightGreyValue, kBlack}) {
        const std::uint32_t behind = Rgb(ShadeFor(ground, StrokeRole::Ground, ground).colour);
        const auto strength = [&](int colour, StrokeRole role) {
            return Contrast(Rgb(ShadeFor(colour, role, ground).colour), behind);
        };
        EXPECT_GT(strength(kGrey, StrokeRole::Curve), 1.2 * strength(kGrey, StrokeRole::Grid));
        EXPECT_GT(strength(kDarkRed, StrokeRole::Curve), 1.2 * strength(kGrey, StrokeRole::Grid));
    }
    // A number without a row looks as the palette has it.
    EXPECT_EQ(Rgb(ShadeFor(kLightRed, StrokeRole::Curve, kWhite).colour), PaletteRgb(kLightRed));
}

}  // namespace
}  // namespace zandrell
