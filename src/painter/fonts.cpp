#include "painter/fonts.h"

#include <QFontDatabase>
#include <QString>
#include <QStringList>

namespace zandrell {

std::vector<std::string> FontNames() {
    std::vector<std::string> names;
    for (const QString& family : QFontDatabase::families()) {
        if (QFontDatabase::isPrivateFamily(family)) continue;
        if (QFontDatabase::isSmoothlyScalable(family)) names.push_back(family.toStdString());
    }
    return names;
}

}  // namespace zandrell
