#include "desktop/options_window.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPainter>
#include <QPainterPath>
#include <QVBoxLayout>

#include "desktop/look.h"
#include "desktop/look_colours.h"
#include "desktop/panel_builder.h"
#include "painter/chart_drawing.h"

namespace zandrell {
namespace {

constexpr QSize kSampleSize{208, 130};  // pixels

// Passes a picture on with grounds of its own and without its texts, which are unreadable at the
// size of a sample.
class SampleCanvas : public RecordingCanvas {
  public:
    SampleCanvas(int background, int foreground)
        : background_number_(background), foreground_number_(foreground) {}
    void Clear(int, int) override {
        RecordingCanvas::Clear(background_number_, foreground_number_);
    }
    void Text(double, double, std::string_view) override {}

  private:
    int background_number_, foreground_number_;
};

QImage SampleOf(const RecordingCanvas& picture, bool dark, const QWidget& window) {
    SampleCanvas sample(dark ? kBlack : kWhite, dark ? kWhite : kBlack);
    picture.ReplayOn(sample);
    const double density = window.devicePixelRatioF();
    const QSize size =
        QSize(Scaled(window, kSampleSize.width()), Scaled(window, kSampleSize.height())) * density;
    QImage image = RenderPicture(sample, size.width(), size.height(), density);
    image.setDevicePixelRatio(density);
    return image;
}

// A picture that stands for an option button beside it: a click chooses the option.
class SampleButton : public QAbstractButton {
  public:
    SampleButton(const QImage& sample, const OptionButton& option, QWidget* parent)
        : QAbstractButton(parent), sample_(sample), option_(option) {
        setFixedSize((QSizeF(sample.size()) / sample.devicePixelRatio()).toSize() + QSize(8, 8));
        setFocusPolicy(Qt::TabFocus);
        setCursor(Qt::PointingHandCursor);
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const QRectF body = QRectF(rect()).adjusted(3, 3, -3, -3);
        QPainterPath path;
        path.addRoundedRect(body, 6, 6);
        painter.save();
        painter.setClipPath(path);
        painter.drawImage(QPointF(4, 4), sample_);
        painter.restore();
        const bool strong = option_.on || hasFocus();
        painter.setPen(QPen(strong ? ColourOf(LookColour::Accent) : ColourOf(LookColour::Border),
                            strong ? 2.5 : 1));
        painter.drawPath(path);
    }

  private:
    QImage sample_;
    const OptionButton& option_;
};

QGroupBox* MakeGroup(const QString& heading, QWidget* parent) {
    auto* group = new QGroupBox(heading, parent);
    group->setFlat(false);
    return group;
}

}  // namespace

OptionsWindow::OptionsWindow(OptionsForm& form, const Captions& captions,
                             const RecordingCanvas& picture, Pictures& pictures, QWidget* parent)
    : ModalWindow(form, pictures, parent), options_(form) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(18, 14, 18, 14);
    layout->setSpacing(12);
    PanelBuilder build(mirror_, this);
    layout->addWidget(build.Caption(form.OptPNUeb, true));
    layout->addWidget(MakeFields());
    layout->addWidget(MakeKinds(ShownText(captions[Caption::ChartKind])));
    layout->addWidget(MakeSchemes(ShownText(captions[Caption::Colours]), picture));
    auto* exact = new QCheckBox(this);
    mirror_.Bind(exact, form.ExactBox);
    layout->addWidget(exact);
    auto* fog_lines = new QCheckBox(this);
    mirror_.Bind(fog_lines, form.FogLinesBox);
    layout->addWidget(fog_lines);
    layout->addWidget(MakeButtons());
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

QWidget* OptionsWindow::MakeFields() {
    auto* group = new QWidget(this);
    auto* grid = new QGridLayout(group);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(12);
    PanelBuilder build(mirror_, group);
    struct Entry {
        const Label& caption;
        const TextField& field;
        const char* unit;  // where the caption has none of its own
    };
    const Entry entries[] = {
        {options_.pressure_label, options_.absD, ""},
        {options_.height_label, options_.geoH, ""},
        {options_.tmin_label, options_.qvTmind, "°C"},
        {options_.tmax_label, options_.qvtmaxi, "°C"},
        {options_.xmin_label, options_.Xmini, "g/kg"},
        {options_.xmax_label, options_.Xmaxi, "g/kg"},
    };
    int row = 0;
    for (const Entry& entry : entries) {
        grid->addWidget(build.Caption(entry.caption), row, 0);
        grid->addWidget(build.Field(entry.field, entry.caption, {}, 9), row, 1);
        grid->addWidget(build.Words(QString::fromUtf8(entry.unit), entry.caption), row, 2);
        ++row;
    }
    grid->setColumnStretch(0, 1);
    return group;
}

QWidget* OptionsWindow::MakeKinds(const QString& heading) {
    auto* group = MakeGroup(heading, this);
    auto* row = new QHBoxLayout(group);
    auto* kinds = new QButtonGroup(group);
    PanelBuilder build(mirror_, group);
    for (const OptionButton* option : {&options_.Option3d1, &options_.Option3d2}) {
        auto* button = build.Option(*option);
        kinds->addButton(button);
        row->addWidget(button, 1);
    }
    return group;
}

QWidget* OptionsWindow::MakeSchemes(const QString& heading, const RecordingCanvas& picture) {
    auto* group = MakeGroup(heading, this);
    auto* grid = new QGridLayout(group);
    auto* schemes = new QButtonGroup(group);
    PanelBuilder build(mirror_, group);
    int column = 0;
    for (const auto& [option, panel] : {std::pair{&options_.Black, &options_.Panel3D12},
                                        {&options_.white, &options_.Panel3D13}}) {
        auto* button = build.Option(*option);
        schemes->addButton(button);
        grid->addWidget(button, 0, column);
        const bool dark = option == &options_.Black;
        auto* sample = new SampleButton(SampleOf(picture, dark, *this), *option, group);
        mirror_.BindPanel(sample, *panel);
        mirror_.Describe(sample, *option);
        // The frame of a sample follows its option.
        QObject::connect(sample, &QAbstractButton::clicked, sample,
                         [this, name = panel->name] { mirror_.Click(name); });
        QObject::connect(button, &QAbstractButton::toggled, sample, [sample] { sample->update(); });
        grid->addWidget(sample, 1, column);
        ++column;
    }
    return group;
}

QWidget* OptionsWindow::MakeButtons() {
    auto* group = new QWidget(this);
    auto* row = new QHBoxLayout(group);
    row->setContentsMargins(0, 0, 0, 0);
    row->addStretch(1);
    PanelBuilder build(mirror_, group);
    row->addWidget(build.PictureButton(options_.Command3D1, &options_.Command3D1_l));
    row->addWidget(build.PictureButton(options_.Command3D5, &options_.Command3D5_l));
    return group;
}

}  // namespace zandrell
