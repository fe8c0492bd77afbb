#include "desktop/grid_view.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QRegularExpression>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QToolTip>
#include <QWheelEvent>
#include <algorithm>
#include <utility>

#include "desktop/look.h"

namespace zandrell {
namespace {

constexpr int kTwipsPerPixel = 15;
constexpr int kRowHeight = 22, kLeastColumn = 28, kCellMargin = 8;  // pixels at scale 1
constexpr int kPreviewPause = 500;  // ms until a row under the pointer counts
constexpr int kWheelStep = 120;
constexpr int kNarrowColumn = 1000;  // twips
constexpr int kNarrowest = 80;       // pixels at scale 1, of a text that gives way
constexpr double kHeadFont = 0.92;   // of the font of the rows

// A ground that says whether a unit fits stays to be seen in the chosen row.
class SignalDelegate : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    // The cell whose column the keys act on is framed: the chosen row has one ground.
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        QStyledItemDelegate::paint(painter, option, index);
        if (!option.state.testFlag(QStyle::State_HasFocus)) return;
        const bool signal = index.data(GridModel::kSignalRole).toBool();
        painter->setPen(option.palette.color(signal ? QPalette::Text : QPalette::HighlightedText));
        painter->drawRect(option.rect.adjusted(1, 1, -2, -2));
    }

  protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        if (index.data(GridModel::kSignalRole).toBool()) {
            option->font.setBold(option->state.testFlag(QStyle::State_Selected));
            option->state &= ~(QStyle::State_Selected | QStyle::State_HasFocus);
        }
    }
};

// Where a head may be broken into lines.
QStringList PartsOf(const QString& head) {
    static const QRegularExpression breaks(QStringLiteral("[ \\x{200B}]"));
    return head.split(breaks, Qt::SkipEmptyParts);
}

}  // namespace

GridView::GridView(Grid& grid, FormMirror& mirror, QWidget* parent)
    : QTableView(parent), grid_(grid), mirror_(mirror), model_(grid, this) {
    setModel(&model_);
    setItemDelegate(new SignalDelegate(this));
    setObjectName(QString::fromUtf8(grid.name.data(), static_cast<qsizetype>(grid.name.size())));
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setMouseTracking(true);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setVerticalScrollMode(ScrollPerItem);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setMinimumSectionSize(0);
    verticalHeader()->setDefaultSectionSize(Scaled(*this, kRowHeight));
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter |
                                            static_cast<Qt::Alignment>(Qt::TextWordWrap));
    QFont head_font = font();
    head_font.setPointSizeF(kHeadFont * head_font.pointSizeF());
    horizontalHeader()->setFont(head_font);
    horizontalHeader()->setMinimumSectionSize(0);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsClickable(true);
    hover_.setSingleShot(true);
    hover_.setInterval(kPreviewPause);
    connect(&hover_, &QTimer::timeout, this, [this] {
        if (is_filling && is_filling()) return hover_.start();
        mirror_.Perform([this] { mirror_.Window().UserHover(grid_.name, pointed_row_); });
    });
    connect(horizontalHeader(), &QHeaderView::sectionClicked, this, [this](int column) {
        mirror_.Perform([&] { mirror_.Window().UserSort(grid_.name, column); });
    });
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this] { FollowScrolling(); });
    connect(verticalScrollBar(), &QScrollBar::actionTriggered, this,
            [this] { follows_choice_ = false; });
    mirror_.AddWriter([this] { MirrorGrid(); });
}

void GridView::MirrorGrid() {
    if (isHidden() == grid_.visible) setVisible(grid_.visible);
    if (isEnabledTo(parentWidget()) != grid_.enabled) setEnabled(grid_.enabled);
    const bool refilled = model_.Refresh();
    if (refilled) {
        for (int row = 1; row < grid_.RowCount(); ++row) {
            const bool hidden = grid_.Height(row) == 0;
            if (isRowHidden(row - 1) != hidden) setRowHidden(row - 1, hidden);
        }
        for (int column = 0; column < grid_.ColumnCount(); ++column) {
            setColumnHidden(column, grid_.Width(column) == 0);
        }
        MeasureColumns();
        FitColumns();
        shown_top_ = 0;
    }
    if (shown_top_ != grid_.TopRow() && model_.rowCount() > 0) {
        shown_top_ = grid_.TopRow();
        scrollTo(model_.index(shown_top_ - 1, 0), PositionAtTop);
    }
    const QModelIndex wanted = model_.index(grid_.row - 1, std::max(grid_.column, 0));
    if (wanted.isValid() && wanted.row() != currentIndex().row()) {
        // Choosing a row would scroll to it; the form says where the table stands.
        const int place = verticalScrollBar()->value();
        setCurrentIndex(wanted);
        verticalScrollBar()->setValue(place);
    }
    if (refilled && verticalScrollBar()->value() == 0) {
        follows_choice_ = true;
        ShowChoice();
    }
    if (accessibleDescription() != ShownText(grid_.tool_tip)) {
        setAccessibleDescription(ShownText(grid_.tool_tip));
    }
}

// The unit that a fill recommends is brought into view; a list that opens just now gets its height
// later.
void GridView::ShowChoice() {
    if (!follows_choice_ || !currentIndex().isValid()) return;
    const int place = visualRect(currentIndex()).center().y();
    if (place < 0 || place >= viewport()->height()) scrollTo(currentIndex(), PositionAtCenter);
}

QRect GridView::CellRect(int row, int column) const {
    return visualRect(model_.index(row - 1, column));
}

// What a column needs: the longest part of its head that cannot be broken, and its texts as far as
// it was designed for them.
void GridView::MeasureColumns() {
    wishes_.assign(static_cast<std::size_t>(grid_.ColumnCount()), {});
    const int margin = Scaled(*this, kCellMargin);
    const QFontMetrics head_font = horizontalHeader()->fontMetrics();
    for (int column = 0; column < grid_.ColumnCount(); ++column) {
        if (grid_.Width(column) == 0) continue;
        ColumnWish& wish = wishes_[static_cast<std::size_t>(column)];
        wish.grows = grid_.Width(column) > kNarrowColumn;
        wish.designed = Scaled(*this, grid_.Width(column) / kTwipsPerPixel);
        wish.least = Scaled(*this, kLeastColumn);
        for (const QString& part : PartsOf(HeadText(column))) {
            wish.least = std::max(wish.least, head_font.horizontalAdvance(part) + margin);
        }
        int longest = 0;
        for (int row = 1; row < grid_.RowCount() && longest < wish.designed; ++row) {
            const QString text = ShownText(grid_.Text(row, column));
            longest = std::max(longest, fontMetrics().horizontalAdvance(text) + margin);
        }
        wish.least = std::max(wish.least, std::min(longest, wish.designed));
        wish.wanted = wish.grows ? wish.least : std::max(wish.least, wish.designed);
    }
}

void GridView::FitColumns() {
    if (static_cast<int>(wishes_.size()) != grid_.ColumnCount() || wishes_.empty()) return;
    // The names give way where the window leaves no room; a tool tip has them whole.
    int longest = 0;
    for (int column = 0; column < grid_.ColumnCount(); ++column) {
        if (grid_.Width(column) > grid_.Width(longest)) longest = column;
    }
    const auto widths = WidthsInRoom(wishes_, static_cast<std::size_t>(longest),
                                     viewport()->width(), Scaled(*this, kNarrowest));
    for (int column = 0; column < grid_.ColumnCount(); ++column) {
        if (grid_.Width(column) == 0) continue;
        setColumnWidth(column, widths[static_cast<std::size_t>(column)]);
    }
    FitHead();
}

QString GridView::HeadText(int column) const {
    return model_.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
}

// High enough for the head of the most lines.
void GridView::FitHead() {
    int height = 2 * Scaled(*this, kRowHeight) - 4;
    const QFontMetrics font = horizontalHeader()->fontMetrics();
    for (int column = 0; column < grid_.ColumnCount(); ++column) {
        if (isColumnHidden(column)) continue;
        const QRect lines = font.boundingRect(
            QRect(0, 0, columnWidth(column) - Scaled(*this, kCellMargin) / 2, height * 4),
            Qt::TextWordWrap, HeadText(column));
        height = std::max(height, lines.height() + Scaled(*this, 6));
    }
    if (horizontalHeader()->height() != height) horizontalHeader()->setFixedHeight(height);
}

// What is to be read in the table needs no tool tip over it.
bool GridView::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const QModelIndex index = indexAt(static_cast<QHelpEvent*>(event)->pos());
        const int needed = fontMetrics().horizontalAdvance(index.data(Qt::DisplayRole).toString()) +
                           Scaled(*this, kCellMargin);
        if (!index.isValid() || needed <= columnWidth(index.column())) {
            QToolTip::hideText();
            return true;
        }
    }
    return QTableView::viewportEvent(event);
}

void GridView::TakeCurrent() {
    if (!currentIndex().isValid()) return;
    grid_.row = currentIndex().row() + 1;
    grid_.column = currentIndex().column();
}

void GridView::MoveCurrent(int by) {
    int row = currentIndex().row() + by;
    while (row >= 0 && row < model_.rowCount() && isRowHidden(row)) row += by;
    if (row < 0 || row >= model_.rowCount()) return;
    setCurrentIndex(model_.index(row, std::max(currentIndex().column(), 0)));
    TakeCurrent();
}

void GridView::keyPressEvent(QKeyEvent* event) {
    follows_choice_ = false;
    const int key = event->key();
    const bool arrow = key == Qt::Key_Up || key == Qt::Key_Down;
    const auto modifiers = event->modifiers() & ~Qt::KeypadModifier;
    const ActKind act = key == Qt::Key_Up ? ActKind::RowsUp : ActKind::RowsDown;
    const bool scrolls = modifiers == Qt::NoModifier && mirror_.Window().acts.Has(grid_.name, act);
    if (arrow && !scrolls) return MoveCurrent(key == Qt::Key_Up ? -1 : 1);
    if (arrow) {
        mirror_.Perform([&] { mirror_.Window().UserGridAct(grid_.name, act); });
        return;
    }
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        TakeCurrent();
        mirror_.Perform([&] { mirror_.Window().UserReturn(grid_.name); });
        return;
    }
    if (key == Qt::Key_I && modifiers == Qt::NoModifier) {
        TakeCurrent();
        mirror_.Perform([&] { mirror_.Window().UserGridAct(grid_.name, ActKind::Tell); });
        return;
    }
    // A head is out of reach of the keys.
    if (key == Qt::Key_S && modifiers == Qt::NoModifier) {
        TakeCurrent();
        mirror_.Perform([&] { mirror_.Window().UserSort(grid_.name, grid_.column); });
        return;
    }
    if (key == Qt::Key_Escape) {
        event->ignore();
        return;
    }
    QTableView::keyPressEvent(event);
    TakeCurrent();
}

void GridView::mouseReleaseEvent(QMouseEvent* event) {
    QTableView::mouseReleaseEvent(event);
    const QModelIndex index = indexAt(event->position().toPoint());
    if (event->button() != Qt::LeftButton || !index.isValid()) return;
    hover_.stop();
    mirror_.Perform(
        [&] { mirror_.Window().UserPickCell(grid_.name, index.row() + 1, index.column()); });
}

void GridView::mouseMoveEvent(QMouseEvent* event) {
    QTableView::mouseMoveEvent(event);
    const int row = rowAt(event->position().toPoint().y()) + 1;
    if (row == pointed_row_) return;
    pointed_row_ = row;
    hover_.start();
}

void GridView::leaveEvent(QEvent* event) {
    QTableView::leaveEvent(event);
    hover_.stop();
    pointed_row_ = 0;
    if (grid_.hovered_row == 0) return;
    mirror_.Perform([&] { mirror_.Window().UserHover(grid_.name, 0); });
}

void GridView::wheelEvent(QWheelEvent* event) {
    if (event->modifiers() != Qt::NoModifier || event->angleDelta().y() == 0) {
        return QTableView::wheelEvent(event);
    }
    follows_choice_ = false;
    wheel_ += event->angleDelta().y();
    event->accept();
    while (std::abs(wheel_) >= kWheelStep) {
        const bool up = wheel_ > 0;
        wheel_ += up ? -kWheelStep : kWheelStep;
        const ActKind act = up ? ActKind::RowsUp : ActKind::RowsDown;
        mirror_.Perform([&] { mirror_.Window().UserGridAct(grid_.name, act); });
    }
}

void GridView::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    FitColumns();
    ShowChoice();
}

// The scroll bar and the page keys scroll by themselves; the form only takes note.
void GridView::FollowScrolling() {
    const int row = rowAt(0) + 1;
    if (row < 1 || !grid_.SetTopRow(row)) return;
    shown_top_ = row;
}

}  // namespace zandrell
