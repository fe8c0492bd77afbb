#pragma once

#include <gtest/gtest.h>

#include <QDialog>
#include <QHeaderView>
#include <QTest>
#include <QTimer>
#include <functional>
#include <memory>
#include <string>

#include "desktop/selection_window.h"
#include "desktop/window_session.h"

namespace zandrell {

// The selection program without its command line, for a duty of 12 kW.
class SelectionWindowTest : public ::testing::Test {
  protected:
    explicit SelectionWindowTest(const char* language = "ENG") {
        folder_.CopyWholeSet();
        std::string parameters = folder_.Read("kparam.dat");
        parameters.replace(parameters.find("\"ENG\""), 5, "\"" + std::string(language) + "\"");
        folder_.Write("kparam.dat", parameters);
        desk_.Load();
        planner_.SetCaptions();
        window_ = std::make_unique<SelectionWindow>(desk_, planner_, user_);
        window_->resize(1280, 800);
        window_->show();
        SelectionDuty duty;
        duty.capacity = 12;
        planner_.Start(duty);
        window_->Refresh();
        window_->TakeFocus();
        for (int turn = 0; turn < 3; ++turn) QApplication::processEvents();
    }

    template <class Widget>
    Widget* Find(const char* name) {
        auto* widget = window_->findChild<Widget*>(QString::fromLatin1(name));
        EXPECT_NE(widget, nullptr) << name;
        return widget;
    }

    void Act(const std::function<void(VentZeigForm&)>& act) {
        act(desk_.window);
        window_->Refresh();
        QApplication::processEvents();
    }

    // The kind by its number, with the unit of a series.
    void OpenUnit(int kind, int series, int unit) {
        for (std::size_t i = 0; i < kKatalogArten.size(); ++i) {
            if (kKatalogArten[i] == kind) planner_.UserSelect("KindBox", static_cast<int>(i));
        }
        Act([&](VentZeigForm& form) { form.UserPickCell("KatalogSpread", series, 3); });
        if (unit == 0) return;
        Act([&](VentZeigForm& form) { form.UserPickCell("Venttab", unit, 1); });
        Act([](VentZeigForm& form) { form.UserClick("Command3D2"); });
    }

    void Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QWidget* focused = window_->focusWidget();
        ASSERT_NE(focused, nullptr);
        QTest::keyClick(focused, static_cast<Qt::Key>(key), modifiers);
        QApplication::processEvents();
    }

    static QColor GroundOf(const GridView& view, int row, int column) {
        const QRect cell = view.CellRect(row, column);
        return QColor(view.viewport()->grab().toImage().pixel(cell.center().x(), cell.top() + 2));
    }

    // Lets `user` look at the dialog that `button` opens, which is closed behind him.
    void InDialog(const char* button, const std::function<void(QDialog&)>& user) {
        bool seen = false;
        QTimer::singleShot(0, window_.get(), [&] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!dialog) return;
            seen = true;
            user(*dialog);
            if (dialog->isVisible()) dialog->reject();
        });
        Find<QPushButton>(button)->click();
        EXPECT_TRUE(seen) << button;
    }

    QApplication& application_ = TheApplication();
    TestFolder folder_;
    DataFiles files_{folder_.Path()};
    QtUser user_;
    SelectionDesk desk_{user_, files_, NamedFolder(folder_.Path())};
    SelectionContext context_{files_, desk_.shared, desk_.captions, user_, desk_.selection};
    SelectionOpener opener_{context_, desk_.window};
    PlannerForm planner_{context_, desk_.window, opener_};
    VentZeigControls& c_ = desk_.window.controls;
    std::unique_ptr<SelectionWindow> window_;
};

}  // namespace zandrell
