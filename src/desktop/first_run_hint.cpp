#include "desktop/first_run_hint.h"

#include <QApplication>
#include <QEvent>
#include <QSettings>
#include <algorithm>

#include "desktop/look.h"

namespace zandrell {
namespace {

constexpr const char* kSeen = "first_run_hint_seen";
constexpr int kWidth = 460;  // pixels at scale 1

// The account's own settings, not those of the data folder, which belong to the whole suite.
QSettings Account() {
    return QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Zandrell"),
                     QStringLiteral("Zandrell"));
}

}  // namespace

bool FirstRunHint::IsWanted() { return !Account().value(QLatin1String(kSeen), false).toBool(); }

FirstRunHint::FirstRunHint(const QString& text, QWidget* over) : QLabel(text, over) {
    setObjectName(QStringLiteral("FirstRunHint"));
    setProperty("role", QStringLiteral("hint"));
    setWordWrap(true);
    setAlignment(Qt::AlignCenter);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    qApp->installEventFilter(this);
    Place();
    show();
}

void FirstRunHint::Place() {
    ensurePolished();  // the style sheet has its part in the height
    const QSize room = parentWidget()->size();
    const int width = std::min(Scaled(*this, kWidth), room.width() * 9 / 10);
    setFixedSize(width, heightForWidth(width));
    move((room.width() - width) / 2, (room.height() - height()) / 2);
}

bool FirstRunHint::eventFilter(QObject* watched, QEvent* event) {
    const auto type = event->type();
    if (watched == parentWidget() && type == QEvent::Resize) Place();
    // A key that is a shortcut comes as this offer alone.
    const bool acts = type == QEvent::KeyPress || type == QEvent::ShortcutOverride ||
                      type == QEvent::MouseButtonPress || type == QEvent::Wheel;
    if (acts && isVisible()) {
        hide();
        Account().setValue(QLatin1String(kSeen), true);
        deleteLater();
    }
    return false;
}

}  // namespace zandrell
