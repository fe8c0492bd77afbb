#pragma once

#include <QFont>
#include <QLineF>
#include <QString>
#include <optional>
#include <string_view>
#include <vector>

#include "canvas/label_placer.h"
#include "canvas/recording_canvas.h"
#include "painter/chart_view.h"

namespace zandrell {

// A text where it comes to stand on the surface, in pixels. One that was moved far has a line that
// leads to it.
struct LaidText {
    QString text;
    LabelBox box;
    std::optional<QLineF> leader;
};

// Lays out the texts of a picture, so that they keep clear of each other and of the saturation
// line. Fed with what is drawn, in the order of drawing; positions in canvas units.
class TextLayout {
  public:
    // `view` is needed until Finish.
    explicit TextLayout(const ChartView& view) : view_(&view) {}
    // That of a whole picture, with Finish called.
    TextLayout(const RecordingCanvas& picture, const ChartView& view);

    void Line(const Segment& line, int colour);
    void Text(CanvasPoint place, std::string_view text, TextRole role);
    void Finish();

    // What is shown, after Finish.
    const std::vector<LaidText>& Texts() const { return texts_; }
    // What labels of a process have to keep clear of.
    const std::vector<ClearLine>& Saturation() const { return saturation_; }

  private:
    const ChartView* view_;
    std::vector<WantedLabel> wanted_;
    std::vector<ClearLine> saturation_;
    std::vector<LaidText> texts_;
    QPointF last_end_, last_direction_;
};

// A placer for texts of this font on the surface of a view.
LabelPlacer PlacerFor(const QFont& font, const ChartView& view);

// The line from where a text belongs to where it stands; empty while it is near.
std::optional<QLineF> LeaderTo(const PlacedLabel& placed, const WantedLabel& wanted);

}  // namespace zandrell
