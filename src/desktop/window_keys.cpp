#include "desktop/window_keys.h"

#include <QApplication>
#include <QKeyEvent>

namespace zandrell {
namespace {

QPoint DirectionOf(const QKeyEvent& event) {
    if (!(event.modifiers() & Qt::ControlModifier)) return {};
    switch (event.key()) {
        case Qt::Key_Left:
            return {-1, 0};
        case Qt::Key_Right:
            return {1, 0};
        case Qt::Key_Up:
            return {0, -1};
        case Qt::Key_Down:
            return {0, 1};
        default:
            return {};
    }
}

}  // namespace

WindowKeys::WindowKeys(QWidget& window) : window_(window) { qApp->installEventFilter(this); }

bool WindowKeys::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return false;
    const auto* widget = qobject_cast<QWidget*>(watched);
    if (widget == nullptr || widget->window() != &window_) return false;
    // An open menu has the keys for itself.
    if (QApplication::activePopupWidget() != nullptr) return false;
    const auto& key = *static_cast<QKeyEvent*>(event);
    if (key.key() == Qt::Key_Escape) return on_escape && on_escape();
    const QPoint direction = DirectionOf(key);
    return !direction.isNull() && on_control_arrow && on_control_arrow(direction);
}

}  // namespace zandrell
