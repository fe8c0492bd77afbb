#include "chart/curve_cache.h"

#include "base/delimited_text.h"
#include "base/number_text.h"

namespace zandrell {
namespace {

constexpr std::string_view kCacheFile = "qv_wert.dat";
constexpr std::size_t kKeyItems = 6;
constexpr int kEmptyItems = 5;

// The key is compared with what comes back out of the file, so it passes through text first.
std::vector<double> KeyOf(const ChartSettings& settings) {
    std::vector<double> key = {settings.pressure_bar, settings.ChartTMin,
                               settings.ChartTMax,    settings.ChartXMin,
                               settings.ChartXMax,    static_cast<double>(settings.DiagrammArt)};
    for (double& value : key) value = ToDouble(NumberText(value));
    return key;
}

}  // namespace

bool CurveCache::Begin(const ChartSettings& settings) {
    const auto stamp = files_.Stamp(kCacheFile);
    if (!stamp || stamp != stamp_) {
        key_.clear();
        points_.clear();
        const FileText file = files_.OpenForInput(kCacheFile);
        DelimitedReader reader(file.text);
        double value = 0;
        while (key_.size() < kKeyItems && reader.ReadNumber(value)) key_.push_back(value);
        reader.Skip(kEmptyItems);
        CurvePoint point;
        while (reader.ReadNumber(point.t) && reader.ReadNumber(point.x) &&
               reader.ReadNumber(point.h)) {
            points_.push_back(point);
        }
        stamp_ = stamp;
    }
    next_ = 0;
    const auto key = KeyOf(settings);
    rebuilding_ = key != key_;
    if (rebuilding_) {
        key_ = key;
        points_.clear();
    }
    return !rebuilding_;
}

bool CurveCache::Read(CurvePoint& point) {
    if (next_ < points_.size()) point = points_[next_++];
    return next_ > 0;
}

void CurveCache::End() {
    if (!rebuilding_) return;
    rebuilding_ = false;
    DelimitedWriter writer;
    for (const double value : key_) writer.Number(value);
    for (int i = 0; i < kEmptyItems; ++i) writer.Text("");
    writer.EndLine();
    for (const auto& point : points_) {
        writer.Number(point.t).Number(point.x).Number(point.h).EndLine();
    }
    files_.OpenForOutput(kCacheFile, writer.Result(), Durability::Cache);
    stamp_ = files_.Stamp(kCacheFile);
}

}  // namespace zandrell
