// Windows of many sizes: nothing is out of reach, and the scale follows both ways.
#include <gtest/gtest.h>

#include <QPushButton>
#include <QScrollBar>
#include <QSlider>

#include "desktop/content_scroll.h"
#include "desktop/window_session.h"

namespace zandrell {
namespace {

class SizesTest : public WindowSession {
  protected:
    void Resize(int width, int height) {
        window_->resize(width, height);
        // The layout follows in a turn of its own, and its children in theirs.
        for (int turn = 0; turn < 4; ++turn) QApplication::processEvents();
    }

    // Whether all of a widget can be brought to where it is seen.
    void ExpectInReach(QWidget& widget, const std::string& where) {
        const std::string what = widget.objectName().toStdString() + where;
        for (QWidget* parent = widget.parentWidget(); parent; parent = parent->parentWidget()) {
            if (auto* scroll = dynamic_cast<ContentScroll*>(parent)) {
                scroll->ensureWidgetVisible(&widget, 0, 0);
            }
        }
        const QRect shown(widget.mapTo(window_.get(), QPoint(0, 0)), widget.size());
        EXPECT_TRUE(window_->rect().contains(shown)) << what;
        const QWidget* seen = window_->childAt(shown.center());
        EXPECT_EQ(seen, &widget) << what << " lies under "
                                 << (seen ? seen->objectName().toStdString() : "nothing");
    }
};

TEST_F(SizesTest, NothingIsOutOfReach) {
    const QSize sizes[] = {{700, 480}, {1008, 652}, {1280, 800}, {1920, 1080}, {3840, 2160}};
    for (const QSize& size : sizes) {
        Resize(size.width(), size.height());
        EXPECT_EQ(window_->size(), size) << "the window can be that small";
        const std::string where = " at " + std::to_string(size.width());
        for (const char* opens : {"BearButt", "MischButt", "AnlageButt"}) {
            window_->Mirror().Perform([&] { form_.UserClick(opens); });
            QApplication::processEvents();
            for (const char* always : {"optButt", "Command3D7", "Command3D2", "Schr_T"}) {
                ExpectInReach(*Find<QWidget>(always), where);
            }
            const bool plant = std::string(opens) == "AnlageButt";
            auto* panel = Find<QWidget>(plant ? "Frame1" : "Anlage1PN");
            EXPECT_TRUE(
                window_->Chart().rect().adjusted(-10, -10, 10, 10).contains(panel->geometry()))
                << opens << where;
            for (QWidget* inside : panel->findChildren<QWidget*>()) {
                const bool takes_input = qobject_cast<QLineEdit*>(inside) ||
                                         qobject_cast<QSlider*>(inside) ||
                                         qobject_cast<QPushButton*>(inside);
                if (takes_input && inside->isVisible()) ExpectInReach(*inside, where);
            }
            window_->Mirror().Perform([&] { form_.UserClick(plant ? "AnlageAbButt" : "abbcom"); });
        }
    }
}

TEST_F(SizesTest, TheStatusLineStandsBesideAnOpenPanel) {
    for (const QSize& size : {QSize(1008, 652), QSize(1280, 800)}) {
        Resize(size.width(), size.height());
        for (const char* opens : {"AnlageButt", "BearButt"}) {
            window_->Mirror().Perform([&] { form_.UserClick(opens); });
            window_->Mirror().Perform([&] { form_.UserClick("PSButt"); });
            for (int turn = 0; turn < 3; ++turn) QApplication::processEvents();
            const auto* line = Find<QLabel>("StatusLine");
            const bool plant = std::string(opens) == "AnlageButt";
            const QWidget* panel = Find<QWidget>(plant ? "Frame1" : "Anlage1PN");
            ASSERT_TRUE(line->isVisible() && panel->isVisible());
            EXPECT_FALSE(line->geometry().intersects(panel->geometry().adjusted(10, 10, -10, -10)))
                << opens << size.width();
            EXPECT_TRUE(window_->Chart().rect().contains(line->geometry()));
            window_->Mirror().Perform([&] { form_.UserClick(plant ? "AnlageAbButt" : "abbcom"); });
        }
    }
}

TEST_F(SizesTest, TheScaleFollowsTheWindowBothWays) {
    const auto heights = [this] {
        return std::array{Find<QWidget>("AnlageButt")->fontMetrics().height(),
                          Find<QPushButton>("AnlageButt")->iconSize().height(),
                          Find<QWidget>("AbluftLabel")->fontMetrics().height(),
                          Find<QWidget>("Taus")->fontMetrics().height()};
    };
    const auto small = heights();
    Resize(3840, 2160);
    const auto large = heights();
    for (std::size_t i = 0; i < small.size(); ++i) {
        EXPECT_NEAR(static_cast<double>(large[i]) / small[i], 1.5, 0.2) << i;
    }
    Resize(1280, 800);
    EXPECT_EQ(heights(), small);
}

TEST_F(SizesTest, WhatIsTypedAndWhereSurvivesAnotherScale) {
    Click(*Find<QPushButton>("AnlageButt"));
    Find<QWidget>("Taus")->setFocus();
    Type(*Find<QLineEdit>("Taus"), "31.");
    Resize(3840, 2160);
    EXPECT_EQ(Find<QLineEdit>("Taus")->text(), QStringLiteral("31."));
    EXPECT_EQ(window_->focusWidget(), Find<QLineEdit>("Taus"));
}

TEST_F(SizesTest, BarsAreLongWhereThereIsRoomAndThePlantIsNarrowWhereNot) {
    for (const int width : {1280, 1920}) {
        Resize(width, 800);
        for (const char* opens : {"MischButt", "AnlageButt"}) {
            window_->Mirror().Perform([&] { form_.UserClick(opens); });
            QApplication::processEvents();
            for (const QSlider* bar : window_->findChildren<QSlider*>()) {
                if (!bar->isVisible()) continue;
                EXPECT_GE(bar->width(), 160) << bar->objectName().toStdString() << width;
            }
            window_->Mirror().Perform([&] {
                form_.UserClick("abbcom");
                form_.UserClick("AnlageAbButt");
            });
        }
    }
    window_->Mirror().Perform([&] { form_.UserClick("AnlageButt"); });
    QApplication::processEvents();
    const int wide = Find<QWidget>("Frame1")->width();
    Resize(1100, 760);
    EXPECT_LT(Find<QWidget>("Frame1")->width(), 0.75 * wide);
}

}  // namespace
}  // namespace zandrell
