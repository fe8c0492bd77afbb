#pragma once

#include <QByteArray>
#include <QPageLayout>
#include <string>

#include "canvas/sheet.h"

namespace zandrell {

// The paper of a page, its whole sheet printable.
QPageLayout LayoutOf(const Sheet& sheet);

// The page and those behind it: curves as paths, texts as texts, fonts embedded. Requires: a
// QGuiApplication.
QByteArray SheetPdf(const Sheet& sheet);

// Replaces the file only when the new one is whole. On failure the result is false and `error` one
// clear line. Requires: a QGuiApplication.
bool WriteSheetPdf(const Sheet& sheet, const std::string& path, std::string& error);

}  // namespace zandrell
