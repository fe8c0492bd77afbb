#include "painter/output_file.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace zandrell {
namespace {

bool Replace(const QByteArray& bytes, QSaveFile&& file, QString& reason) {
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit()) {
        return true;
    }
    reason = file.errorString();
    return false;
}

// Unbuffered, so that a full device says so in the write and not unseen in the close.
bool WriteInto(const QByteArray& bytes, QFile&& file, QString& reason) {
    if (file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) &&
        file.write(bytes) == bytes.size()) {
        file.close();
        if (file.error() == QFileDevice::NoError) return true;
    }
    reason = file.errorString();
    return false;
}

}  // namespace

bool WriteOutput(const QByteArray& bytes, const std::string& path, std::string& error) {
    const QString name = QString::fromStdString(path);
    const QFileInfo present(name);
    const bool special = present.exists() && !present.isFile() && !present.isDir();
    QString reason;
    if (special ? WriteInto(bytes, QFile(name), reason) : Replace(bytes, QSaveFile(name), reason)) {
        return true;
    }
    error = path + ": " + reason.toStdString();
    return false;
}

}  // namespace zandrell
