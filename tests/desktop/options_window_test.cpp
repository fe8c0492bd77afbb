#include "desktop/options_window.h"

#include <QMessageBox>
#include <QSet>
#include <QTimer>
#include <functional>

#include "canvas/palette.h"
#include "desktop/look_colours.h"
#include "desktop/window_session.h"

namespace zandrell {
namespace {

class OptionsWindowTest : public WindowSession {
  protected:
    // Opens the options by the right button and lets `user` act inside.
    void RightClick(const std::function<void(QDialog&)>& user) {
        bool acted = false;
        QTimer::singleShot(0, window_.get(), [&] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            user(*dialog);
            acted = true;
        });
        Click(window_->Chart(), Qt::RightButton);
        EXPECT_TRUE(acted);
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    }

    static QWidget* Inside(QDialog& dialog, const char* name) {
        auto* widget = dialog.findChild<QWidget*>(QString::fromLatin1(name));
        EXPECT_NE(widget, nullptr) << name;
        return widget;
    }

    QImage ChartPicture() { return window_->Chart().grab().toImage(); }

    static int Colours(const QImage& image) {
        QSet<QRgb> colours;
        for (int y = 0; y < image.height(); y += 3) {
            for (int x = 0; x < image.width(); ++x) colours.insert(image.pixel(x, y));
        }
        return static_cast<int>(colours.size());
    }
};

TEST_F(OptionsWindowTest, EscapeChangesNothing) {
    const QImage before = ChartPicture();
    RightClick([](QDialog& dialog) { Key(dialog, Qt::Key_Escape); });
    EXPECT_EQ(ChartPicture().size(), before.size());
    EXPECT_EQ(ChartPicture(), before);
}

TEST_F(OptionsWindowTest, SampleOfTheDarkSchemeChangesTheChart) {
    const QImage light = ChartPicture();
    EXPECT_GT(Colours(light), 50);
    RightClick([](QDialog& dialog) {
        Click(*Inside(dialog, "Panel3D12"));
        EXPECT_TRUE(qobject_cast<QAbstractButton*>(Inside(dialog, "Black"))->isChecked());
        Click(*Inside(dialog, "Command3D1"));
    });
    const QImage dark = ChartPicture();
    EXPECT_GT(Colours(dark), 50);
    const QPoint free_ground(light.width() - 40, light.height() * 2 / 3);
    EXPECT_GT(qGray(light.pixel(free_ground)), 230);
    EXPECT_LT(qGray(dark.pixel(free_ground)), 40);
}

TEST_F(OptionsWindowTest, ReturnInTheHeightStaysAndElsewhereTakes) {
    RightClick([](QDialog& dialog) {
        auto* height = qobject_cast<QLineEdit*>(Inside(dialog, "geoH"));
        Type(*height, "1000");
        height->setFocus();
        Key(*height, Qt::Key_Return);
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_EQ(qobject_cast<QLineEdit*>(Inside(dialog, "absD"))->text(),
                  QStringLiteral(" .898"));
        auto* pressure = qobject_cast<QLineEdit*>(Inside(dialog, "absD"));
        pressure->setFocus();
        Key(*pressure, Qt::Key_Return);
    });
    EXPECT_DOUBLE_EQ(form_.chart.settings.pressure_bar, 0.898);
}

TEST_F(OptionsWindowTest, MessageOfAWrongRangeKeepsTheWindowOpen) {
    std::string message;
    RightClick([&](QDialog& dialog) {
        Type(*qobject_cast<QLineEdit*>(Inside(dialog, "qvTmind")), "-60");
        QTimer::singleShot(0, &dialog, [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            message = box->text().toStdString();
            box->accept();
        });
        Click(*Inside(dialog, "Command3D1"));
        EXPECT_TRUE(dialog.isVisible());
        dialog.close();
    });
    EXPECT_NE(message.find("minimal  < -50°C !"), std::string::npos);
    EXPECT_DOUBLE_EQ(form_.chart.settings.ChartTMin, -20);
}

TEST_F(OptionsWindowTest, ARefusedFieldIsRedUntilItIsTypedAnew) {
    RightClick([](QDialog& dialog) {
        auto* box = qobject_cast<QAbstractButton*>(Inside(dialog, "ExactBox"));
        if (!box->isChecked()) box->click();
        auto* pressure = qobject_cast<QLineEdit*>(Inside(dialog, "absD"));
        const auto ground = [&] {
            return QColor(pressure->grab().toImage().pixel(6, pressure->height() / 2));
        };
        const QColor plain = ground();
        Type(*pressure, "50");
        QTimer::singleShot(0, &dialog, [] {
            auto* message = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(message, nullptr);
            message->accept();
        });
        Click(*Inside(dialog, "Command3D1"));
        ASSERT_TRUE(dialog.isVisible());
        EXPECT_EQ(ground(), GroundColour(kLightRed));
        Type(*pressure, "0.9");
        EXPECT_EQ(ground(), plain);
        Click(*Inside(dialog, "Command3D1"));
        EXPECT_FALSE(dialog.isVisible());
    });
    EXPECT_DOUBLE_EQ(form_.chart.settings.pressure_bar, 0.9);
}

}  // namespace
}  // namespace zandrell
