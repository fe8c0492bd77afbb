#include "desktop/modal_window.h"

#include <QAbstractItemView>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QPushButton>

#include "desktop/floating_panel.h"
#include "desktop/look_colours.h"

namespace zandrell {

ModalWindow::ModalWindow(ModalForm& form, Pictures& pictures, QWidget* parent)
    : QDialog(parent), form_(form), mirror_(form, pictures) {
    mirror_.after_act = [this] { Refresh(); };
    mirror_.skinned = !form.ground_picture.empty();
    setProperty("skinned", mirror_.SkinTexts());
}

void ModalWindow::Refresh() {
    mirror_.Mirror();
    if (windowTitle() != ShownText(form_.title)) setWindowTitle(ShownText(form_.title));
    if (form_.closed && isVisible()) {
        done(QDialog::Accepted);
    } else {
        Refreshed();
    }
}

void ModalWindow::Run() {
    setWindowTitle(ShownText(form_.title));
    mirror_.Mirror();
    if (!form_.closed) exec();
}

void ModalWindow::StandBeside() {
    Refresh();
    if (form_.closed) return;
    show();
    raise();
    activateWindow();
}

void ModalWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_F1) {
        if (on_help) on_help();
        return;
    }
    if (event->key() == Qt::Key_Escape) {
        mirror_.Click(form_.cancel_control);
        return;
    }
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        QDialog::keyPressEvent(event);
        return;
    }
    if (auto* button = qobject_cast<QPushButton*>(focusWidget())) {
        button->click();
        return;
    }
    // A field or list with an act of its own has performed it by now; what happens to the window is
    // up to that.
    if (const QWidget* widget = focusWidget()) {
        const std::string name = widget->objectName().toStdString();
        const bool list = qobject_cast<const QAbstractItemView*>(widget) != nullptr;
        if (form_.acts.Has(name, ActKind::Return)) return;
        if (list && form_.acts.Has(name, ActKind::Select)) return;
    }
    mirror_.Click(form_.default_control);
}

void ModalWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    if (!form_.closed) mirror_.Click(form_.cancel_control);
}

void ModalWindow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    PaintPanelGround(painter, QRectF(rect()), 0, form_.ground_picture, mirror_.PictureStore(),
                     ColourOf(LookColour::Window));
}

}  // namespace zandrell
