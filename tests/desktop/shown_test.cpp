// What a user sees and where his keys go: grounds, skins, schemes, focus and menus, looked at from
// outside, at the pixels and at whatever has the focus.
#include <gtest/gtest.h>

#include <QDialog>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSet>
#include <QSlider>
#include <QTest>
#include <QTimer>
#include <functional>

#include "canvas/palette.h"
#include "desktop/look_colours.h"
#include "desktop/menus.h"
#include "desktop/window_session.h"

namespace zandrell {
namespace {

class ShownTest : public WindowSession {
  protected:
    explicit ShownTest(const WindowSetup& setup = {}) : WindowSession(setup) {}

    // A key as the window system would send it: to whatever has the focus.
    void Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QWidget* focused = window_->focusWidget();
        ASSERT_NE(focused, nullptr);
        Key(*focused, key, {}, modifiers);
        QApplication::processEvents();
    }

    std::string Focused() const {
        const QWidget* focused = window_->focusWidget();
        return focused ? focused->objectName().toStdString() : "nothing";
    }

    // The colour of the window near the left end of a widget, clear of border and text.
    QColor GroundAt(const QWidget& widget, QPoint place) {
        const QPoint at = widget.mapTo(window_.get(), place);
        return QColor(window_->grab(QRect(at, QSize(1, 1))).toImage().pixel(0, 0));
    }
    QColor GroundOf(const QWidget& widget) { return GroundAt(widget, {5, widget.height() / 2}); }

    void OpenTool(const char* entry, const char* humidity) {
        window_->Mirror().Perform([&] {
            struct {
                const char *name, *text;
            } const inputs[] = {
                {"Temp1", "20"}, {"relF1", humidity}, {"Temp2", "30"}, {"LuftM1", "1000"}};
            for (const auto& input : inputs) form_.UserSetText(input.name, input.text);
            form_.UserClick(entry);
        });
        QApplication::processEvents();
    }

    // Opens the options as a user would and lets `user` look at them.
    void InOptions(const std::function<void(QDialog&)>& user) {
        bool acted = false;
        QTimer::singleShot(0, window_.get(), [&] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            QApplication::processEvents();
            user(*dialog);
            acted = true;
        });
        Click(window_->Chart(), Qt::RightButton);
        EXPECT_TRUE(acted);
        QApplication::processEvents();
    }
};

double Lightness(const QColor& colour) { return qGray(colour.rgb()); }

TEST_F(ShownTest, TheRedGroundOfAnImpossibleHumidityIsSeen) {
    // Water sprayed into air that is cooled below its wet bulb: there is no such state.
    OpenTool("ZAButt", "50");
    window_->Mirror().Perform([&] { form_.processes.point.relF2.background = kLightRed; });
    EXPECT_EQ(GroundOf(*Find<QLineEdit>("relF2")), ColourOf(LookColour::SoftRed));
    EXPECT_EQ(GroundOf(*Find<QLineEdit>("relF1")), ColourOf(LookColour::Field));
    window_->Mirror().Perform([&] { form_.processes.point.relF2.background = kWhite; });
    EXPECT_EQ(GroundOf(*Find<QLineEdit>("relF2")), ColourOf(LookColour::Field));
}

// What the form knows of a field or figure is on the screen: in colours, and in words for who
// cannot see them.
TEST_F(ShownTest, UnusedPendingAndStaleAreSeen) {
    OpenTool("BearButt", "50");
    auto* field = Find<QLineEdit>("relF1");
    const auto* figure = Find<QLabel>("KLatent");
    window_->Mirror().Perform([&] {
        form_.UserSetText("Temp2", "30");
        form_.UserSetText("relF2", "40");
        form_.UserReturn("relF2");
    });
    const auto edge = [&] { return GroundAt(*field, {1, field->height() / 2}); };
    const auto ink = [&] { return figure->palette().color(QPalette::WindowText); };
    Find<QLineEdit>("Temp1")->setFocus();
    const int pixels = QFontInfo(field->font()).pixelSize();
    const QColor plain_ink = ink();
    EXPECT_NE(edge(), ColourOf(LookColour::Accent));

    window_->Mirror().Perform([&] { form_.UserSetText("relF1", "150"); });
    EXPECT_EQ(edge(), ColourOf(LookColour::Accent));
    EXPECT_EQ(QFontInfo(field->font()).pixelSize(), pixels);
    EXPECT_EQ(ink(), ColourOf(LookColour::MutedInk));
    EXPECT_TRUE(figure->font().italic());
    EXPECT_EQ(GroundOf(*field), ColourOf(LookColour::Field));

    window_->Mirror().Perform([&] { form_.UserReturn("relF1"); });
    EXPECT_NE(edge(), ColourOf(LookColour::Accent));
    EXPECT_EQ(GroundOf(*field), ColourOf(LookColour::SoftRed));
    EXPECT_EQ(field->toolTip(), QStringLiteral("not used: only 0 to 100 % is possible"));
    EXPECT_EQ(field->accessibleDescription(), field->toolTip());

    window_->Mirror().Perform([&] {
        form_.UserSetText("relF1", "50");
        form_.UserReturn("relF1");
    });
    EXPECT_EQ(GroundOf(*field), ColourOf(LookColour::Field));
    EXPECT_EQ(field->toolTip(), QString());
    EXPECT_EQ(ink(), plain_ink);
    EXPECT_FALSE(figure->font().italic());
}

TEST_F(ShownTest, TheRunningToolAndWhatWouldBeRefusedAreSeen) {
    auto* tool = Find<QPushButton>("BearButt");
    const QColor plain = GroundAt(*tool, {6, 6});
    Click(*tool);
    QApplication::processEvents();
    EXPECT_EQ(GroundAt(*tool, {6, 6}), ColourOf(LookColour::Selected));
    EXPECT_EQ(Find<QLabel>("PointToolName")->text(), QStringLiteral("Capacity"));
    auto* other = Find<QPushButton>("MischButt");
    EXPECT_FALSE(other->isEnabled());
    EXPECT_TRUE(other->toolTip().startsWith(QStringLiteral("close the open panel first")));
    Press(Qt::Key_Escape);
    EXPECT_EQ(GroundAt(*tool, {6, 6}), plain);
    EXPECT_TRUE(other->isEnabled());
}

TEST_F(ShownTest, TheStatusLineIsShownOverTheFootOfTheChart) {
    auto* line = Find<QLabel>("StatusLine");
    EXPECT_FALSE(line->isVisible());
    Click(*Find<QPushButton>("PSButt"));
    QApplication::processEvents();
    EXPECT_TRUE(line->isVisible());
    EXPECT_EQ(line->text(), QStringLiteral("Saved"));
    EXPECT_EQ(line->accessibleName(), QStringLiteral("Saved"));
    EXPECT_GT(line->geometry().top(), window_->Chart().height() * 9 / 10);
    EXPECT_EQ(GroundAt(*line, {line->width() / 2, 2}), ColourOf(LookColour::Panel));
}

TEST_F(ShownTest, TheDarkSchemeTakesPanelsMenusAndWindowsAlong) {
    InOptions([](QDialog& dialog) {
        Click(*dialog.findChild<QWidget*>(QStringLiteral("Panel3D12")));
        Click(*dialog.findChild<QWidget*>(QStringLiteral("Command3D1")));
    });
    Click(*Find<QPushButton>("AnlageButt"));
    QApplication::processEvents();
    const struct {
        const char* what;
        const QWidget* widget;
        QPoint place;
    } grounds[] = {
        {"menu bar", window_->menuBar(), {window_->menuBar()->width() - 5, 4}},
        {"tool column", Find<QWidget>("FunktButtPn"), {3, 3}},
        {"tool button", Find<QWidget>("BearButt"), {6, 6}},
        {"panel", Find<QWidget>("Frame1"), {40, 16}},
        {"field", Find<QWidget>("Taus"), {6, 6}},
        {"figure", Find<QWidget>("Kuehl"), {6, 6}},
    };
    for (const auto& ground : grounds) {
        EXPECT_LT(Lightness(GroundAt(*ground.widget, ground.place)), 80) << ground.what;
    }
    EXPECT_GT(Lightness(Find<QLabel>("AbluftLabel")->palette().color(QPalette::WindowText)), 180);
    InOptions([](QDialog& dialog) {
        const QImage shown = dialog.grab().toImage();
        EXPECT_LT(Lightness(shown.pixelColor(3, 3)), 80);
        Click(*dialog.findChild<QWidget*>(QStringLiteral("Panel3D13")));
        Click(*dialog.findChild<QWidget*>(QStringLiteral("Command3D1")));
    });
    EXPECT_GT(Lightness(GroundAt(*Find<QWidget>("Taus"), {6, 6})), 240) << "and back";
}

class SkinTest : public ShownTest, public testing::WithParamInterface<int> {
  protected:
    SkinTest() : ShownTest({.skin = GetParam()}) {}
};

TEST_P(SkinTest, ReachesTheOptions) {
    const bool dark_text = GetParam() != 2 && GetParam() != 3;
    InOptions([&](QDialog& dialog) {
        const QColor ground = dialog.grab().toImage().pixelColor(3, 3);
        EXPECT_LT(Lightness(ground), 160) << "the picture of the skins";
        const auto* caption = dialog.findChild<QLabel*>(QStringLiteral("absDLabel"));
        ASSERT_NE(caption, nullptr);
        EXPECT_EQ(caption->palette().color(QPalette::WindowText),
                  QColor(dark_text ? Qt::black : Qt::white));
        EXPECT_EQ(caption->font().bold(), dark_text);
        Click(*dialog.findChild<QWidget*>(QStringLiteral("Command3D5")));
    });
}

INSTANTIATE_TEST_SUITE_P(Skins, SkinTest, testing::Range(1, 6));

TEST_F(ShownTest, PanelsTakeTheFocusAndLeaveItToTheChart) {
    const struct {
        const char *opens, *first;
    } panels[] = {{"BearButt", "Temp1"}, {"AnlageButt", "tabLuft"}};
    for (const auto& panel : panels) {
        Click(*Find<QPushButton>(panel.opens));
        EXPECT_EQ(Focused(), panel.first);
        Press(Qt::Key_Tab);
        EXPECT_NE(Focused(), panel.first);
        Press(Qt::Key_Escape);
        EXPECT_EQ(form_.Pointer().PanelZustand(), PointerOwner::Nobody);
        EXPECT_EQ(Focused(), "chart");
    }
}

TEST_F(ShownTest, EscapeClosesThePanelFromAnywhere) {
    for (const char* place : {"chart", "Proj_T", "LuftM1", "Tscroll1", "optButt", "abbcom"}) {
        Click(*Find<QPushButton>("BearButt"));
        QApplication::processEvents();
        Find<QWidget>(place)->setFocus();
        ASSERT_EQ(Focused(), place);
        Press(Qt::Key_Escape);
        EXPECT_FALSE(Find<QWidget>("Anlage1PN")->isVisible()) << place;
    }
}

TEST_F(ShownTest, ArrowsWithControlMoveThePanelFromItsFieldsAndBars) {
    Click(*Find<QPushButton>("BearButt"));
    QApplication::processEvents();
    auto* panel = Find<QWidget>("Anlage1PN");
    for (const char* place : {"Temp1", "Tscroll1", "chart"}) {
        Find<QWidget>(place)->setFocus();
        const QPoint before = panel->pos();
        const int bar = Find<QSlider>("Tscroll1")->value();
        Press(Qt::Key_Left, Qt::ControlModifier);
        Press(Qt::Key_Up, Qt::ControlModifier);
        EXPECT_LE((panel->pos() - before - QPoint(-16, -16)).manhattanLength(), 3) << place;
        EXPECT_EQ(Find<QSlider>("Tscroll1")->value(), bar);
        EXPECT_EQ(Focused(), place) << "the focus stays";
    }
    // A text keeps its way from word to word.
    auto* project = Find<QLineEdit>("Proj_T");
    project->setText(QStringLiteral("cold store"));
    project->setFocus();
    const QPoint before = panel->pos();
    Press(Qt::Key_Left, Qt::ControlModifier);
    EXPECT_EQ(panel->pos(), before);
    EXPECT_LT(project->cursorPosition(), 10);
}

TEST(AccessKeys, AreGivenOnce) {
    const QStringList own =
        WithOwnAccessKeys({QStringLiteral("&Calculate Heater"), QStringLiteral("&Calculate Cooler"),
                           QStringLiteral("State &Change"), QStringLiteral("a"),
                           QStringLiteral("&a"), QStringLiteral("A")});
    EXPECT_EQ(own,
              QStringList({QStringLiteral("&Calculate Heater"), QStringLiteral("Ca&lculate Cooler"),
                           QStringLiteral("&State Change"), QStringLiteral("a"),
                           QStringLiteral("&a"), QStringLiteral("A")}))
        << own.join(QLatin1Char('|')).toStdString();
}

class MenuTest : public ShownTest, public testing::WithParamInterface<const char*> {
  protected:
    MenuTest() : ShownTest({.language = GetParam()}) {}

    static void Look(const QList<QAction*>& actions) {
        QSet<QChar> keys;
        for (const QAction* action : actions) {
            if (action->isSeparator() || !action->isVisible()) continue;
            const QString text = action->text();
            const qsizetype mark = text.indexOf(QLatin1Char('&'));
            ASSERT_GE(mark, 0) << text.toStdString();
            const QChar key = text[mark + 1].toLower();
            EXPECT_FALSE(keys.contains(key)) << text.toStdString();
            keys.insert(key);
            if (action->menu()) Look(action->menu()->actions());
        }
    }
};

TEST_P(MenuTest, HasNoAccessKeyTwice) { Look(window_->menuBar()->actions()); }

INSTANTIATE_TEST_SUITE_P(Languages, MenuTest,
                         testing::Values("ENG", "DEU", "FRA", "ITA", "ESP", "POR", "NDL"));

TEST_F(ShownTest, MenusShowTheirKeysAndTheKeysWork) {
    const auto action = [this](const char* name) {
        auto* found = window_->menuBar()->findChild<QAction*>(QString::fromLatin1(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    };
    for (const char* entry : {"qveinst", "ZustAe", "Misch", "Kleis", "AnlageS", "Heiz_start",
                              "kopieren", "Ende", "HelpHere", "Undo"}) {
        EXPECT_FALSE(action(entry)->shortcut().isEmpty()) << entry;
    }
    int separators = 0;
    for (const QAction* entry : action("Bearb")->menu()->actions()) {
        separators += entry->isSeparator();
    }
    EXPECT_EQ(separators, 3);
    // The whole way of a key: the window system's event through the table of shortcuts.
    QTest::keyClick(window_->windowHandle(), Qt::Key_F5);
    EXPECT_EQ(form_.processes.Rechenmodus, Calculation::Capacity);
    QTest::keyClick(window_->windowHandle(), Qt::Key_Escape);
    QTest::keyClick(window_->windowHandle(), Qt::Key_1, Qt::ControlModifier);
    EXPECT_EQ(form_.processes.Rechenmodus, Calculation::Heater);
}

TEST_F(ShownTest, TheSmallCrossTakesFocusAndCloses) {
    for (const auto& [opens, cross] :
         {std::pair{"BearButt", "Picture3"}, {"AnlageButt", "Picture12"}}) {
        Click(*Find<QPushButton>(opens));
        QApplication::processEvents();
        Find<QWidget>(cross)->setFocus(Qt::TabFocusReason);
        ASSERT_EQ(Focused(), cross);
        Press(Qt::Key_Space);
        EXPECT_EQ(form_.Pointer().PanelZustand(), PointerOwner::Nobody) << cross;
    }
}

}  // namespace
}  // namespace zandrell
