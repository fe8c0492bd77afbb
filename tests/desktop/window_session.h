#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QString>
#include <memory>
#include <string>

#include "desktop/accessible.h"
#include "desktop/look.h"
#include "desktop/main_window.h"
#include "desktop/qt_user.h"
#include "support/test_folder.h"

namespace zandrell {

// One application for all tests of the program; it needs no display.
inline QApplication& TheApplication() {
    static int count = 1;
    static char name[] = "desktop_test";
    static char* arguments[] = {name, nullptr};
    static QApplication* const application = [] {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        auto* made =
            new QApplication(count, arguments);  // never destroyed: it outlives all statics
        ApplyLook(*made);
        InstallAccessibles();
        return made;
    }();
    return *application;
}

// What stands in kparam.dat.
struct WindowSetup {
    std::string language = "ENG";
    int skin = 0;
    std::string chart = {};  // what stands in qv_par.dat; empty: as delivered
};

// The windows on a data folder of their own, with simulated input.
class WindowSession : public testing::Test {
  protected:
    explicit WindowSession(const WindowSetup& setup = {}) {
        folder_.CopyWholeSet();
        WriteParameters(setup);
        form_.Load();
        window_ = std::make_unique<MainWindow>(form_, files_, user_);
        window_->resize(1280, 800);
        window_->show();
        window_->Start();
        // The layout follows in a turn of its own, and its children in theirs.
        for (int turn = 0; turn < 3; ++turn) QApplication::processEvents();
    }

    void WriteParameters(const WindowSetup& setup) {
        std::string parameters = folder_.Read("kparam.dat");
        const auto put = [&parameters](const std::string& old, const std::string& text) {
            const auto at = parameters.find(old);
            ASSERT_NE(at, std::string::npos) << old;
            parameters.replace(at, old.size(), text);
        };
        put("\"ENG\"", "\"" + setup.language + "\"");
        put("\n0,\"\",\"1\"", "\n" + std::to_string(setup.skin) + ",\"\",\"1\"");
        folder_.Write("kparam.dat", parameters);
        if (!setup.chart.empty()) folder_.Write("qv_par.dat", setup.chart);
    }

    template <class Widget>
    Widget* Find(const char* name) {
        auto* widget = window_->findChild<Widget*>(QString::fromLatin1(name));
        EXPECT_NE(widget, nullptr) << name;
        return widget;
    }

    static void Mouse(QWidget& widget, QEvent::Type type, QPointF place,
                      Qt::MouseButton button = Qt::LeftButton) {
        const bool moves = type == QEvent::MouseMove;
        QMouseEvent event(type, place, widget.mapToGlobal(place), moves ? Qt::NoButton : button,
                          moves ? Qt::NoButton : button, Qt::NoModifier);
        QApplication::sendEvent(&widget, &event);
    }

    static void Click(QWidget& widget, Qt::MouseButton button = Qt::LeftButton) {
        const QPointF centre = QRectF(widget.rect()).center();
        Mouse(widget, QEvent::MouseButtonPress, centre, button);
        Mouse(widget, QEvent::MouseButtonRelease, centre, button);
    }

    static void Key(QWidget& widget, int key, const QString& text = {},
                    Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, modifiers, text);
            QApplication::sendEvent(&widget, &event);
        }
    }

    // Replaces the text of a field as fingers would.
    static void Type(QLineEdit& field, const std::string& text) {
        field.selectAll();
        for (const char letter : text) {
            Key(field, 0, QString(QLatin1Char(letter)));
        }
    }

    QApplication& application_ = TheApplication();
    TestFolder folder_;
    DataFiles files_{folder_.Path()};
    QtUser user_;
    MainForm form_{user_, files_, folder_.Path()};
    std::unique_ptr<MainWindow> window_;
};

}  // namespace zandrell
