// What a screen reader finds.
#include "desktop/accessible.h"

#include <gtest/gtest.h>

#include <QDialog>
#include <QPushButton>
#include <QSettings>
#include <QTimer>

#include "desktop/accessible_walk.h"
#include "desktop/first_run_hint.h"
#include "desktop/window_session.h"

namespace zandrell {
namespace {

class AccessibleTest : public WindowSession {
  protected:
    static QAccessibleInterface& Of(QWidget* widget) {
        return *QAccessible::queryAccessibleInterface(widget);
    }
    static std::string Text(QWidget* widget, QAccessible::Text kind) {
        return Of(widget).text(kind).toStdString();
    }
    void Open(const char* tool) {
        window_->Mirror().Perform([&] {
            form_.UserClick("abbcom");
            form_.UserClick("AnlageAbButt");
            struct {
                const char *name, *text;
            } const inputs[] = {{"Temp1", "32"},
                                {"relF1", "40"},
                                {"Temp2", "22"},
                                {"relF2", "50"},
                                {"LuftM1", "1000"}};
            for (const auto& input : inputs) form_.UserSetText(input.name, input.text);
            form_.UserClick(tool);
            form_.UserReturn("Temp1");  // brings the bars in line
        });
        QApplication::processEvents();
    }
};

TEST_F(AccessibleTest, NothingThatTakesFocusIsUnnamedAndNoFigureWithoutValue) {
    const struct {
        const char* tool;
        int figures, bars;  // at least
    } panels[] = {{"ZAButt", 4, 4}, {"BearButt", 7, 5}, {"MischButt", 7, 6}, {"AnlageButt", 5, 6}};
    for (const auto& panel : panels) {
        Open(panel.tool);
        const Found found = LookAt(*window_);
        EXPECT_GT(found.focusable, 20) << panel.tool;
        EXPECT_GE(found.figures, panel.figures) << panel.tool;
        EXPECT_GE(found.bars, panel.bars) << panel.tool;
    }
    bool looked = false;
    QTimer::singleShot(0, window_.get(), [&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        EXPECT_GT(LookAt(*dialog).focusable, 10);
        looked = true;
        Key(*dialog, Qt::Key_Escape);
    });
    Click(window_->Chart(), Qt::RightButton);
    EXPECT_TRUE(looked);
}

TEST_F(AccessibleTest, FiguresBarsAndChartTellTheirValuesWithUnits) {
    Open("BearButt");
    const struct {
        const char *widget, *name, *value;
    } cases[] = {
        {"absF1", "Humidity Ratio 1", "11.91 g/kg"},
        {"Tscroll1", "Temperature 1", "32 °C"},
        {"FScroll2", "Rel. Humidity 2", "50 %"},
        {"VScroll1", "Air Flow Rate 1", "100 %"},
        {"Temp1", "Temperature 1 °C", "32"},
        {"AbsDruck", "Pressure", "1.013 bar"},
        {"Picture3", "Cancel", ""},
    };
    for (const auto& c : cases) {
        auto* widget = Find<QWidget>(c.widget);
        EXPECT_EQ(Text(widget, QAccessible::Name), c.name);
        EXPECT_EQ(QString::fromStdString(Text(widget, QAccessible::Value)).trimmed().toStdString(),
                  c.value)
            << c.name;
    }
    EXPECT_EQ(Of(Find<QWidget>("Tscroll1")).valueInterface()->currentValue().toDouble(), 32);
    Of(Find<QWidget>("Tscroll1")).valueInterface()->setCurrentValue(28.5);
    EXPECT_EQ(Find<QLineEdit>("Temp1")->text(), QStringLiteral(" 28.5"));
    EXPECT_NE(Text(Find<QWidget>("Anlage1PN"), QAccessible::Name), "");

    window_->Mirror().Perform([&] { form_.UserClick("abbcom"); });
    ChartWidget& chart = window_->Chart();
    // 32 degC and 10 g/kg: 33.7 %, 57.8 kJ/kg, as the shell's tests have it.
    Mouse(chart, QEvent::MouseMove, chart.ToWidget(form_.chart.scale.PointOf(10, 32)));
    EXPECT_EQ(Text(&chart, QAccessible::Name), "h,x Chart");
    const std::string state = Text(&chart, QAccessible::Value);
    for (const char* part : {"Temperature 3", "°C, Rel. Humidity 33.", "kJ/kg", "kg/m³"}) {
        EXPECT_NE(state.find(part), std::string::npos) << state;
    }
}

TEST_F(AccessibleTest, TheFirstHintIsSeenOnceAndAnyActDismissesIt) {
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope,
                       QString::fromStdString(folder_.Path().string()));
    window_->ShowFirstRunHint();
    auto* hint = Find<QLabel>("FirstRunHint");
    ASSERT_NE(hint, nullptr);
    EXPECT_TRUE(hint->isVisible());
    EXPECT_TRUE(window_->Chart().rect().contains(hint->geometry()));
    EXPECT_GE(hint->height(), hint->heightForWidth(hint->width())) << "no line is cut off";
    EXPECT_FALSE(hint->text().isEmpty());
    Mouse(window_->Chart(), QEvent::MouseMove, {300, 300});
    EXPECT_TRUE(hint->isVisible()) << "looking around is no act";
    Mouse(window_->Chart(), QEvent::MouseButtonPress, {300, 300});
    EXPECT_FALSE(hint->isVisible());
    EXPECT_EQ(form_.Pointer().PanelZustand(), PointerOwner::FrameDrawing)
        << "the act itself counts";
    EXPECT_FALSE(FirstRunHint::IsWanted());
    window_->ShowFirstRunHint();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(window_->findChild<QLabel*>(QStringLiteral("FirstRunHint")), nullptr);
}

}  // namespace
}  // namespace zandrell
