#include "desktop/look.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QRegularExpression>

#include "canvas/palette.h"
#include "desktop/look_colours.h"
#include "desktop/window_session.h"
#include "support/contrast.h"

namespace zandrell {
namespace {

std::uint32_t Rgb(const QColor& colour) { return colour.rgb() & 0xFFFFFFU; }

TEST(Look, TextsAndBordersStandOutFromTheirGround) {
    using enum LookColour;
    const struct {
        LookColour drawn;
        std::vector<LookColour> grounds;
        double least;
    } cases[] = {
        {Ink,
         {Field, Window, Panel, Cell, Selected, Pressed, Hovered, SoftRed},
         kLeastTextContrast},
        {MutedInk, {Field, Window, Panel, Cell}, kLeastTextContrast},
        {Field, {Ink}, kLeastTextContrast},
        {White, {Band}, kLeastTextContrast},
        {OnAccent, {Accent}, kLeastTextContrast},
        {Border, {Field, Window, Panel, Cell}, kLeastLineContrast},
        {Accent, {Field, Window, Panel, Cell, Hovered, Pressed, SoftRed}, kLeastLineContrast},
    };
    for (const auto& c : cases) {
        for (const LookColour ground : c.grounds) {
            for (const LookScheme scheme : {LookScheme::Light, LookScheme::Dark}) {
                const QColor drawn = ColourOf(c.drawn, scheme), under = ColourOf(ground, scheme);
                EXPECT_GE(Contrast(Rgb(drawn), Rgb(under)), c.least)
                    << static_cast<int>(c.drawn) << " on " << static_cast<int>(ground)
                    << (scheme == LookScheme::Dark ? ", dark" : "");
            }
        }
    }
    for (std::size_t i = 0; i < LookTable().size(); ++i) {
        EXPECT_EQ(static_cast<std::size_t>(LookTable()[i].colour), i);
    }
}

TEST(Look, TheStyleSheetTakesItsColoursFromTheTable) {
    const QString sheet = TheApplication().styleSheet();
    EXPECT_FALSE(sheet.contains(QLatin1Char('@')));
    auto colours = QRegularExpression(QStringLiteral("#[0-9A-Fa-f]{6}")).globalMatch(sheet);
    ASSERT_TRUE(colours.hasNext());
    while (colours.hasNext()) {
        const QColor colour(colours.next().captured());
        EXPECT_TRUE(std::ranges::any_of(LookTable(), [&](const LookRow& row) {
            return row.light == Rgb(colour);
        })) << colour.name().toStdString();
    }
    EXPECT_EQ(WithColours("a @disabled-edge b @disabled;"),
              QStringLiteral("a %1 b %2;")
                  .arg(ColourOf(LookColour::DisabledEdge).name(),
                       ColourOf(LookColour::DisabledInk).name()));
}

// Mean luminance of a square of a picture.
double MeanLuminance(const QImage& picture, int left, int top, int side) {
    double sum = 0;
    for (int y = top; y < top + side; ++y) {
        for (int x = left; x < left + side; ++x) sum += Luminance(picture.pixel(x, y) & 0xFFFFFFU);
    }
    return sum / (side * side);
}

// The pictures of the skins carry black captions in some and white ones in others. What counts is
// the ground around a letter: compression lets single pixels waver.
TEST(Look, CaptionsStandOutFromThePicturesOfTheSkins) {
    const double black = Luminance(Rgb(TextColour(kBlack)));
    const double white = Luminance(Rgb(TextColour(kWhite)));
    constexpr int kLetter = 10;  // pixels
    for (const char* name : {"ZD_Bk00.jpg", "ZD_Bk031.jpg", "ZD_Back01.jpg", "ZD_Back02.jpg"}) {
        const QImage picture(QStringLiteral(ZANDRELL_STAGED_DATA "/") + QString::fromLatin1(name));
        ASSERT_FALSE(picture.isNull()) << name;
        double least = 21;
        for (int y = 0; y + kLetter <= picture.height(); y += kLetter) {
            for (int x = 0; x + kLetter <= picture.width(); x += kLetter) {
                const double ground = MeanLuminance(picture, x, y, kLetter);
                least = std::min({least, ContrastOfLuminances(black, ground),
                                  ContrastOfLuminances(white, ground)});
            }
        }
        EXPECT_GE(least, kLeastTextContrast) << name;
    }
}

}  // namespace
}  // namespace zandrell
