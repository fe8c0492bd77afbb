#include "desktop/qt_viewer.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QFileInfo>
#include <QProcess>
#include <QStringList>
#include <QUrl>

namespace zandrell {

// Never a program of that name from somewhere else.
bool QtViewer::StartProgram() {
    const QString folder = QCoreApplication::applicationDirPath();
    for (const auto* name : {"viewer", "viewer.exe"}) {
        const QFileInfo program(folder + QLatin1Char('/') + QLatin1String(name));
        if (!program.isFile() || !program.isExecutable()) continue;
        return QProcess::startDetached(program.filePath(), {}, folder);
    }
    return false;
}

void QtViewer::OpenDocument(const std::string& path) {
    QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromStdString(path)));
}

}  // namespace zandrell
