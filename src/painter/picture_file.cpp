#include "painter/picture_file.h"

#include <QBuffer>
#include <QByteArray>
#include <QImageReader>
#include <algorithm>

namespace zandrell {
namespace {

constexpr int kLargestSide = 4096;  // pixels

}  // namespace

QImage ReadPicture(const DataFiles& files, std::string_view name) {
    const RecordFile file = files.OpenRandom(name, 1);
    QByteArray bytes = QByteArray::fromStdString(file.Bytes());
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    const QSize size = reader.size();
    if (std::max(size.width(), size.height()) > kLargestSide) return {};
    return reader.read();
}

}  // namespace zandrell
