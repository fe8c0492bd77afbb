#pragma once

#include <optional>
#include <vector>

#include "base/data_files.h"
#include "chart/chart_settings.h"

namespace zandrell {

struct CurvePoint {
    double t = 0, x = 0, h = 0;  // degC, g/kg, kJ/kg
};

// The points of the ten humidity curves, kept in qv_wert.dat under the six settings they hold for.
// The file is read anew only when it changed on disk.
class CurveCache {
  public:
    explicit CurveCache(const DataFiles& files) : files_(files) {}

    // Readies the cache for one paint. Returns whether the points of these settings are there.
    bool Begin(const ChartSettings& settings);

    // The next point of a good cache; a short file leaves `point` on its last values. False when
    // the cache holds no point at all.
    bool Read(CurvePoint& point);

    // Takes a point while the cache is being rebuilt, and ends the paint: a rebuilt cache is
    // written.
    void Write(const CurvePoint& point) { points_.push_back(point); }
    void End();

  private:
    const DataFiles& files_;
    std::vector<double> key_;
    std::vector<CurvePoint> points_;
    std::optional<FileStamp> stamp_;
    std::size_t next_ = 0;
    bool rebuilding_ = false;
};

}  // namespace zandrell
