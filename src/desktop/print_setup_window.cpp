#include "desktop/print_setup_window.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "desktop/look.h"
#include "desktop/panel_builder.h"

namespace zandrell {
namespace {

constexpr QSize kLogoSize{260, 80};                 // pixels at scale 1
constexpr int kListHeight = 150, kListWidth = 230;  // pixels at scale 1
constexpr int kSampleHeight = 64, kPathDigits = 34;
constexpr int kLongestPath = 4096;

QPushButton* TextButton(const Button& control, FormMirror& mirror, QWidget* parent) {
    auto* button = new QPushButton(parent);
    button->setAutoDefault(false);
    mirror.Bind(button, control);
    return button;
}

}  // namespace

PrintSetupWindow::PrintSetupWindow(PrintSetupForm& form, Pictures& pictures, QWidget* parent)
    : ModalWindow(form, pictures, parent), setup_(form), pictures_(pictures) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(18, 14, 18, 14);
    layout->setSpacing(12);
    auto* columns = new QHBoxLayout;
    columns->setSpacing(18);
    auto* left = new QVBoxLayout;
    left->addWidget(MakePaper());
    left->addWidget(MakeLogo());
    left->addStretch(1);
    columns->addLayout(left, 1);
    columns->addWidget(MakeFonts(), 1);
    layout->addLayout(columns);
    layout->addWidget(MakeInformation());
    layout->addWidget(MakeButtons());
    layout->setSizeConstraint(QLayout::SetFixedSize);
    Refreshed();
}

QWidget* PrintSetupWindow::MakePaper() {
    auto* group = new QWidget(this);
    auto* grid = new QGridLayout(group);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(12);
    PanelBuilder build(mirror_, group);
    int row = 0;
    for (const auto& [caption, box] :
         {std::pair{&setup_.Label6, &setup_.Date_Combo}, {&setup_.Label5, &setup_.Size_combo}}) {
        auto* combo = new QComboBox(group);
        mirror_.Bind(combo, *box);
        mirror_.Describe(combo, *caption);
        grid->addWidget(build.Caption(*caption), row, 0);
        grid->addWidget(combo, row, 1, 1, 2);
        ++row;
    }
    auto* orientations = new QButtonGroup(group);
    int column = 1;
    for (const OptionButton* option : {&setup_.Option1, &setup_.Option2}) {
        auto* button = build.Option(*option);
        orientations->addButton(button);
        grid->addWidget(button, row, column++);
    }
    auto* states = new QCheckBox(group);
    mirror_.Bind(states, setup_.StatesBox);
    grid->addWidget(states, row + 1, 1, 1, 2);
    grid->setColumnStretch(2, 1);
    return group;
}

QWidget* PrintSetupWindow::MakeLogo() {
    auto* group = new QWidget(this);
    auto* grid = new QGridLayout(group);
    grid->setContentsMargins(0, 0, 0, 0);
    PanelBuilder build(mirror_, group);
    grid->addWidget(build.Caption(setup_.Label3), 0, 0, 1, 2);
    auto* path = build.Field(setup_.Text1, setup_.Label3, {}, kPathDigits);
    path->setAlignment(Qt::AlignLeft);
    path->setMaxLength(kLongestPath);
    grid->addWidget(path, 1, 0);
    grid->addWidget(TextButton(setup_.Command1, mirror_, group), 1, 1);
    logo_ = new FigureLabel(group);
    logo_->setAlignment(Qt::AlignCenter);
    logo_->setFixedSize(Scaled(*this, kLogoSize.width() + 16),
                        Scaled(*this, kLogoSize.height() + 16));
    grid->addWidget(logo_, 2, 0, 1, 2);
    return group;
}

QWidget* PrintSetupWindow::MakeFonts() {
    auto* group = new QWidget(this);
    auto* grid = new QGridLayout(group);
    grid->setContentsMargins(0, 0, 0, 0);
    PanelBuilder build(mirror_, group);
    grid->addWidget(build.Caption(setup_.font_label), 0, 0);
    auto* sizes = new QComboBox(group);
    mirror_.Bind(sizes, setup_.Font_S);
    mirror_.Describe(sizes, setup_.font_label, QStringLiteral("pt"));
    grid->addWidget(sizes, 0, 1);
    for (ListBox* fonts : {&setup_.fontlist, &setup_.fontlist2}) {
        auto* list = new QListWidget(group);
        list->setFixedHeight(Scaled(*this, kListHeight));
        list->setMinimumWidth(Scaled(*this, kListWidth));
        mirror_.Bind(list, *fonts);
        mirror_.Describe(list, setup_.font_label);
        grid->addWidget(list, fonts == &setup_.fontlist ? 1 : 2, 0, 1, 2);
    }
    sample_ = new FigureLabel(group);
    sample_->setAlignment(Qt::AlignCenter);
    sample_->setFixedHeight(Scaled(*this, kSampleHeight));
    sample_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    mirror_.Bind(sample_, setup_.FonttestPN);
    grid->addWidget(sample_, 3, 0, 1, 2);
    grid->setColumnStretch(0, 1);
    return group;
}

QWidget* PrintSetupWindow::MakeInformation() {
    auto* group = new QGroupBox(this);
    mirror_.BindPanel(group, setup_.Panel3D1);
    auto* grid = new QGridLayout(group);
    PanelBuilder build(mirror_, group);
    grid->addWidget(build.Caption(setup_.Pwidth), 0, 0);
    grid->addWidget(build.Caption(setup_.Pheight), 1, 0);
    grid->addWidget(build.Caption(setup_.Swidth), 0, 1);
    grid->addWidget(build.Caption(setup_.Sheight), 1, 1);
    grid->addWidget(TextButton(setup_.Command3D1, mirror_, group), 0, 2, 2, 1);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    return group;
}

QWidget* PrintSetupWindow::MakeButtons() {
    auto* group = new QWidget(this);
    auto* row = new QHBoxLayout(group);
    row->setContentsMargins(0, 0, 0, 0);
    PanelBuilder build(mirror_, group);
    row->addWidget(build.PictureButton(setup_.prevButt, &setup_.prevButt_l));
    row->addWidget(build.PictureButton(setup_.drbutt, &setup_.drbutt_l));
    row->addWidget(build.PictureButton(setup_.viewButt));
    row->addStretch(1);
    row->addWidget(build.PictureButton(setup_.Okbutt, &setup_.Okbutt_l));
    row->addWidget(build.PictureButton(setup_.Abbutt, &setup_.Abbutt_l));
    return group;
}

void PrintSetupWindow::Refreshed() {
    QFont font = sample_->font();
    if (!setup_.sample_font.empty()) font.setFamily(QString::fromStdString(setup_.sample_font));
    font.setPointSize(setup_.sample_size);
    if (font != sample_->font()) sample_->setFont(font);
    if (setup_.Picture1.picture == shown_logo_) return;
    shown_logo_ = setup_.Picture1.picture;
    QPixmap logo = pictures_.Opaque(shown_logo_);
    const QSize room = logo_->size() - QSize(16, 16);
    if (logo.width() > room.width() || logo.height() > room.height()) {
        logo = logo.scaled(room, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    }
    logo_->setPixmap(logo);
}

}  // namespace zandrell
