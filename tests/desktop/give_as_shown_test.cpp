// The menu of the pairs by a user's click and keys, and what is then on the screen.
#include <QMenu>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QToolTip>

#include "desktop/window_session.h"

namespace zandrell {
namespace {

class GiveAsShown : public WindowSession {
  protected:
    GiveAsShown() {
        form_.chart.settings.convention = Convention::Exact;
        Click(*Find<QPushButton>("ZAButt"));
        for (const auto& [name, text] :
             {std::pair{"Temp1", "26"}, {"relF1", "50"}, {"Temp2", "20"}, {"relF2", "60"}}) {
            auto* field = Find<QLineEdit>(name);
            Type(*field, text);
            Key(*field, Qt::Key_Return);
        }
    }

    // The button opens its menu in a loop of its own; keys go to whatever window popped up.
    void ChooseByKeys(const char* button, const QString& entry) {
        bool opened = false;
        QTimer::singleShot(0, [&] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            opened = menu != nullptr;
            for (int i = 0; menu && i < menu->actions().size(); ++i) {
                Key(*menu, Qt::Key_Down);
                if (menu->activeAction() && menu->activeAction()->text() == entry) break;
            }
            if (menu) Key(*menu, Qt::Key_Return);
        });
        Click(*Find<QPushButton>(button));
        QApplication::processEvents();
        EXPECT_TRUE(opened);
    }
};

TEST_F(GiveAsShown, TheMenuShowsTheFieldsOfItsPair) {
    auto* button = Find<QPushButton>("GiveAs1");
    EXPECT_TRUE(button->isVisible());
    EXPECT_EQ(button->accessibleName(), QStringLiteral("Give as… 1"));
    EXPECT_FALSE(Find<QLineEdit>("Given1A")->isVisible());
    ChooseByKeys("GiveAs1", QStringLiteral("Temperature, Wet Bulb"));
    auto* bulb = Find<QLineEdit>("Given1B");
    ASSERT_TRUE(bulb->isVisible());
    EXPECT_FALSE(Find<QLineEdit>("Given2B")->isVisible());
    EXPECT_EQ(Find<QLabel>("Given1BWord")->text(), QStringLiteral("Wet Bulb /[°C]:"));
    EXPECT_EQ(bulb->accessibleName(), QStringLiteral("Wet Bulb 1 °C"));
    EXPECT_EQ(bulb->text().trimmed(), QStringLiteral("18.7"));  // ASHRAE Handbook: 18.7
    EXPECT_EQ(button->menu()->actions().at(4)->isChecked(), true);
    EXPECT_EQ(button->menu()->actions().at(0)->isChecked(), false);

    auto* temperature = Find<QLineEdit>("Temp1");
    EXPECT_FALSE(temperature->isEnabled());
    const QImage picture = temperature->grab().toImage();
    const QColor ground = picture.pixelColor(picture.width() / 3, picture.height() / 2);
    EXPECT_EQ(ground, ColourOf(LookColour::Cell)) << "as a figure that follows";
    EXPECT_TRUE(Find<QLineEdit>("Temp2")->isEnabled());

    Type(*bulb, "30");
    EXPECT_TRUE(bulb->property("pending").toBool());
    Key(*bulb, Qt::Key_Return);
    EXPECT_EQ(bulb->toolTip(), QStringLiteral("not used: only 8.8 to 26 °C is possible"));
    EXPECT_EQ(QToolTip::text(), bulb->toolTip()) << "seen without hovering";
    EXPECT_EQ(bulb->palette().color(QPalette::Base), ColourOf(LookColour::SoftRed));
    Type(*bulb, "15");
    EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }, 5000)) << "of another text";
    Key(*bulb, Qt::Key_Return);
    EXPECT_EQ(bulb->toolTip(), QString());
    // x is (2466.1 * 10.69 - 1.006 * 11 * 1000) / 2486.6 = 6.15 g/kg, of 21.45 saturated: 29.4 %.
    EXPECT_NEAR(Find<QLineEdit>("relF1")->text().toDouble(), 29.4, 0.3);
    EXPECT_EQ(Find<QLineEdit>("Temp1")->text().trimmed(), QStringLiteral("26"));
}

}  // namespace
}  // namespace zandrell
