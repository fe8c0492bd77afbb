#pragma once

#include <QByteArray>
#include <QImage>
#include <string>

#include "canvas/canvas.h"
#include "canvas/recording_canvas.h"
#include "chart/overlay.h"

namespace zandrell {

// The chart with its process. Requires of all three: a QGuiApplication, and sides of 1 to
// kLargestPictureSide pixels.
QImage ChartImage(const RecordingCanvas& picture, const Overlay& overlay, int width, int height);
QByteArray ChartSvg(const RecordingCanvas& picture, const Overlay& overlay, int width, int height);
QByteArray ChartPdf(const RecordingCanvas& picture, const Overlay& overlay, int width, int height);

// Writes the chart as .png, .svg or .pdf, as the ending of `path` says; the old file is replaced
// only when the new one is whole. Sizes in pixels; a PDF has 96 of them to the inch. On failure the
// result is false and `error` one clear line. Requires: a QGuiApplication.
bool WriteChartFile(const RecordingCanvas& picture, const Overlay& overlay, const std::string& path,
                    int width, int height, std::string& error);

}  // namespace zandrell
