#include "painter/offscreen_toolkit.h"

#include <QGuiApplication>

namespace zandrell {
namespace {

// What the toolkit remarks about its surroundings would stand among the program's own lines.
void Ignore(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& /*text*/) {}

}  // namespace

OffscreenToolkit::OffscreenToolkit(char** arguments) {
    qInstallMessageHandler(Ignore);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    application_ = std::make_unique<QGuiApplication>(argument_count_, arguments);
}

OffscreenToolkit::~OffscreenToolkit() = default;

}  // namespace zandrell
