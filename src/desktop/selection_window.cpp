#include "desktop/selection_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QResizeEvent>
#include <QScrollArea>
#include <QVBoxLayout>

#include "desktop/accessible.h"
#include "desktop/look.h"
#include "desktop/panel_builder.h"
#include "desktop/planner_dialogs.h"
#include "desktop/selection_parts.h"

namespace zandrell {
namespace {

constexpr int kDutyWidth = 250, kUnitWidth = 262;  // pixels at scale 1
constexpr int kRoomyDuty = 280;                    // pixels at scale 1, where there is room
constexpr int kGap = 8;                            // pixels, between the columns
constexpr int kRoomForBoth = 1150;  // pixels at scale 1, of the two lists beside each other
constexpr int kDutyShare = 2, kListsShare = 5;  // of the room for both
constexpr int kPreviewSide = 120;               // pixels at scale 1
constexpr int kFrameTime = 16;                  // ms
constexpr int kTwipsPerPixel = 15;

// A column that is scrolled where the window leaves it no room.
QScrollArea* Scrolled(QWidget* content, int least, int most) {
    auto* area = new QScrollArea;
    area->setWidget(content);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setMinimumWidth(least);
    area->setMaximumWidth(most);
    area->setFocusPolicy(Qt::NoFocus);
    return area;
}

}  // namespace

SelectionWindow::SelectionWindow(SelectionDesk& desk, PlannerForm& planner, QtUser& user)
    : desk_(desk),
      planner_(planner),
      user_(user),
      pictures_(desk.Files()),
      mirror_(desk.window, pictures_),
      planner_mirror_(planner, pictures_) {
    setWindowTitle(ShownText(planner.title));
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(kGap, kGap, kGap, kGap);
    layout->setSpacing(kGap);
    const DutyColumn duty = MakeDutyColumn(planner, planner_mirror_);
    first_field_ = duty.first_field;
    layout->addWidget(Scrolled(duty.panel, Scaled(*this, kDutyWidth), Scaled(*this, kRoomyDuty)),
                      kDutyShare);
    auto* middle = new QVBoxLayout;
    middle->addWidget(MakeLists(), 1);
    middle->addWidget(MakeFoot());
    layout->addLayout(middle, kListsShare);
    auto* right = new QVBoxLayout;
    QWidget* unit = MakeUnitColumn(desk.window.controls, mirror_, desk.captions);
    right->addWidget(Scrolled(unit, Scaled(*this, kUnitWidth), Scaled(*this, kUnitWidth)), 1);
    right->addWidget(MakeWishes(planner, planner_mirror_));
    layout->addLayout(right);
    AddWriters();
    user.Attach({this, nullptr, &pictures_, [this] { mirror_.Mirror(); },
                 [this] { desk_.OpenHelp(); }, &desk.help});
    mirror_.after_act = planner_mirror_.after_act = [this] { Refresh(); };
    desk.window.host.show_progress = [this] { ShowProgress(); };
    BindPlanner();
    since_progress_.start();
    planner_mirror_.Mirror();
    mirror_.Mirror();
}

void SelectionWindow::BindPlanner() {
    const auto words = [this](const Button& button) {
        return DialogWords{ShownText(button.text), ShownText(desk_.captions[Caption::Back])};
    };
    planner_.show_comparison = [this, words] {
        ShowComparison(planner_.lists.Comparison, words(planner_.Compare), this);
    };
    planner_.show_plot = [this, words](const CapacityPlot& plot) {
        ShowCapacityPlot(plot, words(planner_.Plot), this);
    };
    planner_.ask_file = [this](const std::string& proposal) {
        return AskForCsvFile(ShownText(planner_.Csv.text), proposal, this);
    };
}

QWidget* SelectionWindow::MakeLists() {
    splitter_ = new QSplitter(Qt::Vertical, this);
    splitter_->setChildrenCollapsible(false);
    splitter_->setHandleWidth(kGap);
    auto* upper = new QWidget(splitter_);
    auto* layout = new QVBoxLayout(upper);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(MakeSearch());
    series_ = new GridView(desk_.window.controls.KatalogSpread, mirror_, upper);
    series_->setAccessibleName(ShownText(desk_.captions[Caption::Series]));
    layout->addWidget(series_, 1);
    series_->is_filling = [this] { return filling_; };
    preview_ = new QLabel(series_->viewport());
    preview_->setObjectName(QStringLiteral("Picture2"));
    preview_->setFrameShape(QFrame::Box);
    preview_->setAttribute(Qt::WA_TransparentForMouseEvents);
    preview_->hide();
    tip_ = new QLabel(series_->viewport());
    tip_->setObjectName(QStringLiteral("AssitPN"));
    tip_->setFrameShape(QFrame::Box);
    tip_->setAutoFillBackground(true);
    tip_->setMargin(4);
    tip_->hide();
    splitter_->addWidget(upper);
    // The keys go on in the list behind the units when those close; this stands in front of the
    // writer that hides them.
    mirror_.AddWriter([this] {
        if (unit_panel_ == nullptr || desk_.window.controls.pn77.visible) return;
        if (unit_panel_->isAncestorOf(focusWidget())) series_->setFocus();
    });
    unit_panel_ = MakeUnits();
    splitter_->addWidget(unit_panel_);
    splitter_->setStretchFactor(0, 2);
    splitter_->setStretchFactor(1, 3);
    return splitter_;
}

QWidget* SelectionWindow::MakeSearch() {
    VentZeigControls& c = desk_.window.controls;
    auto* row = new QWidget;
    auto* layout = new QGridLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    PanelBuilder build(mirror_, row);
    layout->addWidget(build.Caption(c.searchLabel), 0, 0);
    auto* field = build.Field(c.search, c.searchLabel, {}, 14);
    field->setAlignment(Qt::AlignLeft);
    layout->addWidget(field, 0, 1);
    layout->addWidget(TextButton(c.GoButt, mirror_, row), 0, 2);
    auto* deep = new QCheckBox(row);
    mirror_.Bind(deep, c.Check1);
    layout->addWidget(deep, 0, 3);
    auto* makers = new QListWidget(row);
    makers->setFlow(QListView::LeftToRight);
    makers->setWrapping(false);
    makers->setFixedHeight(Scaled(*this, 40));
    makers->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    makers->setAccessibleName(ShownText(desk_.captions[Caption::Manufacturer]));
    // Keys that only pass through the makers must not search for one.
    mirror_.Bind(makers, c.HerstellList, ListChoice::Activation);
    connect(makers, &QListWidget::itemClicked, this, [this, makers, &c] {
        mirror_.Perform(
            [&] { desk_.window.UserSelect(c.HerstellList.name, makers->currentRow()); });
    });
    layout->addWidget(makers, 1, 0, 1, 4);
    layout->setColumnStretch(1, 1);
    return row;
}

QWidget* SelectionWindow::MakeUnits() {
    VentZeigControls& c = desk_.window.controls;
    auto* panel = new QWidget;
    mirror_.BindPanel(panel, c.pn77);
    auto* layout = new QVBoxLayout(panel);
    layout->setContentsMargins(0, 0, 0, 0);
    PanelBuilder build(mirror_, panel);
    auto* row = new QHBoxLayout;
    row->addWidget(build.Caption(c.SerienPN, true), 1);
    row->addWidget(TextButton(c.Command3D2, mirror_, panel));
    row->addWidget(TextButton(c.Command3D3, mirror_, panel));
    layout->addLayout(row);
    units_ = new GridView(c.Venttab, mirror_, panel);
    mirror_.Describe(units_, c.SerienPN);
    layout->addWidget(units_, 1);
    // Paints its ground itself: the figure below would shine through.
    cell_box_ = new FigureField(6, units_->viewport());
    mirror_.Bind(cell_box_, c.venttabText);
    cell_box_->setAccessibleName(ShownText(desk_.captions[Caption::TakeOver]));
    return panel;
}

QWidget* SelectionWindow::MakeFoot() {
    VentZeigControls& c = desk_.window.controls;
    auto* foot = new QWidget;
    auto* layout = new QGridLayout(foot);
    layout->setContentsMargins(0, 0, 0, 0);
    PanelBuilder build(mirror_, foot);
    auto* status = build.Caption(c.StatusLab);
    status->setWordWrap(true);
    layout->addWidget(status, 0, 0, 1, 7);
    progress_ = new QProgressBar(foot);
    progress_->setTextVisible(false);
    progress_->setFixedHeight(6);
    progress_->setRange(0, 100);
    layout->addWidget(progress_, 0, 7, 1, 2);
    int column = 0;
    for (const Button* button : {&c.Klein, &c.Gross, &c.VentEinstell, &c.viewbutt, &c.druckbutt}) {
        auto* made = TextButton(*button, mirror_, foot);
        if (button == &c.Klein || button == &c.Gross) made->setFixedWidth(Scaled(*this, 40));
        layout->addWidget(made, 1, column++);
    }
    layout->setColumnStretch(column++, 1);
    for (const Button* button : {&c.VentSpeich, &c.UeberNehm, &c.Abbrech}) {
        layout->addWidget(TextButton(*button, mirror_, foot), 1, column++);
    }
    return foot;
}

void SelectionWindow::AddWriters() {
    VentZeigControls& c = desk_.window.controls;
    BindPicture(preview_, c.Picture2, kPreviewSide, mirror_);
    mirror_.AddWriter([this, &c, open = false]() mutable {
        if (c.pn77.visible && !open) units_->setFocus();
        open = c.pn77.visible;
    });
    mirror_.AddWriter([this] { PlaceOverlays(); });
    mirror_.AddWriter([this] { MirrorProgress(); });
}

// Only while it runs: the window is busy with other things too.
void SelectionWindow::MirrorProgress() {
    const VentZeigControls& c = desk_.window.controls;
    progress_->setVisible(desk_.window.pointer_busy && c.Shape9.width < c.Picture3.width);
    progress_->setValue(qRound(100 * c.Shape9.width / c.Picture3.width));
}

// What floats over the lists stands beside its row.
void SelectionWindow::PlaceOverlays() {
    VentZeigControls& c = desk_.window.controls;
    preview_->setVisible(c.Picture2.visible && !preview_->pixmap().isNull());
    if (preview_->isVisible()) {
        preview_->adjustSize();
        const QRect row = series_->CellRect(c.KatalogSpread.hovered_row, 1);
        const int lowest = series_->viewport()->height() - preview_->height();
        const int rightmost = series_->viewport()->width() - preview_->width() - 8;
        const int left = Scaled(*this, static_cast<int>(c.Picture2.left) / kTwipsPerPixel);
        preview_->move(std::min(left, rightmost), std::clamp(row.top(), 0, std::max(lowest, 0)));
        preview_->raise();
    }
    tip_->setVisible(c.AssitPN.visible);
    if (c.AssitPN.visible) {
        tip_->setText(ShownText(c.AssitPN.text));
        tip_->adjustSize();
        tip_->move(static_cast<int>(c.AssitPN.left) / kTwipsPerPixel,
                   static_cast<int>(c.AssitPN.top) / kTwipsPerPixel);
    }
    if (!c.venttabText.visible) return;
    const QRect cell = units_->CellRect(c.Venttab.row, c.Venttab.column);
    if (cell_box_->geometry() != cell) cell_box_->setGeometry(cell);
    if (units_->hasFocus()) cell_box_->setFocus();
}

void SelectionWindow::Refresh() {
    const SelectionEnd end = planner_.Follow();
    planner_mirror_.Mirror();
    mirror_.Mirror();
    setWindowTitle(ShownText(planner_.title) + QStringLiteral(" - ") +
                   ShownText(desk_.window.title));
    if (planner_.TakeWishForSettings()) TakeFocus();
    if (end != SelectionEnd::None && on_end) on_end(end);
}

// Not at every step: a step is far shorter than a frame.
void SelectionWindow::ShowProgress() {
    // One series is read too fast to be told of.
    if (!desk_.window.pointer_busy || since_progress_.elapsed() < kFrameTime) return;
    MirrorProgress();
    filling_ = true;
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    filling_ = false;
    since_progress_.restart();
}

void SelectionWindow::TakeFocus() {
    if (first_field_ != nullptr) first_field_->setFocus();
}

void SelectionWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_F1) return desk_.OpenHelp();
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        if (auto* button = qobject_cast<QPushButton*>(focusWidget())) return button->click();
    }
    // Escape first leaves what is open over the lists, then the series; it never ends the work.
    if (event->key() == Qt::Key_Escape) {
        VentZeigControls& c = desk_.window.controls;
        if (c.venttabText.visible) {
            c.venttabText.visible = false;
            units_->setFocus();
            return mirror_.Mirror();
        }
        if (c.pn77.visible) return mirror_.Click(c.Command3D3.name);
    }
    QWidget::keyPressEvent(event);
}

// Where there is room for both beside each other, the units stand beside the series.
void SelectionWindow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    const int room = width() - Scaled(*this, kDutyWidth + kUnitWidth);
    const auto wanted = room >= Scaled(*this, kRoomForBoth) ? Qt::Horizontal : Qt::Vertical;
    if (splitter_->orientation() != wanted) splitter_->setOrientation(wanted);
}

void SelectionWindow::closeEvent(QCloseEvent* event) {
    if (desk_.window.loaded) {
        event->ignore();
        mirror_.Click(desk_.window.cancel_control);
        return;
    }
    event->accept();
}

}  // namespace zandrell
