#include "desktop/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QFile>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMenuBar>
#include <QMimeData>
#include <QProcess>
#include <QTimer>
#include <QUrl>

#include "desktop/first_run_hint.h"
#include "desktop/menus.h"
#include "desktop/plant_panel_view.h"
#include "desktop/point_panel_view.h"
#include "desktop/tool_column.h"

namespace zandrell {
namespace {

constexpr int kRoomyWidth = 1280;    // pixels of the window from which bars are long
constexpr int kCompactHeight = 790;  // and up to which the tools are drawn together

// The first project among what is dragged; empty: none.
QString ProjectIn(const QMimeData& dragged) {
    for (const QUrl& url : dragged.urls()) {
        QString path = url.toLocalFile();
        if (path.endsWith(QStringLiteral(".prj"), Qt::CaseInsensitive)) return path;
    }
    return {};
}

// The program beside this one.
bool StartSelectionProgram(const std::vector<std::string>& arguments) {
    QStringList list;
    for (const std::string& argument : arguments) list << QString::fromStdString(argument);
    const QString program =
        QCoreApplication::applicationDirPath() + QStringLiteral("/zandrell-selection");
    return QProcess::startDetached(program, list);
}

}  // namespace

MainWindow::MainWindow(MainForm& form, const DataFiles& files, QtUser& user)
    : form_(form),
      user_(user),
      pictures_(files),
      printing_(user, form.captions),
      mirror_(form, pictures_),
      keys_(*this) {
    form.printing.SetDevice(&printing_);
    form.help.viewer = &viewer_;
    form.start_selection = StartSelectionProgram;
    form.state_table.show_beside = [this] { user_.ShowBeside(form_.state_table); };
    mirror_.skinned = !form.controls.FunktButtPn.picture.empty();
    auto* centre = new QWidget(this);
    auto* layout = new QHBoxLayout(centre);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    chart_ = new ChartWidget(form, pictures_, centre);
    chart_->perform = [this](const auto& act) { mirror_.Perform(act); };
    chart_->covered = [this] {
        return point_view_ && plant_view_ ? point_view_->Opaque() + plant_view_->Opaque()
                                          : QRegion();
    };
    status_ = new StatusView(form.status, chart_,
                             [this] { mirror_.Perform([this] { form_.status.Fade(); }); });
    status_->covered = chart_->covered;
    layout->addWidget(chart_, 1);
    setCentralWidget(centre);
    keys_.on_escape = [this] { return Escape(); };
    keys_.on_control_arrow = [this](QPoint direction) { return MovePanel(direction); };
    mirror_.after_act = [this] { Refresh(); };
    setAcceptDrops(true);
    user.Attach({this, &form, &pictures_, [this] {
                     mirror_.Mirror();
                     Refresh();
                     repaint();
                 }});
}

// --- The layout and what it depends on.

MainWindow::Terms MainWindow::WantedTerms() const {
    Terms terms;
    terms.look.scale = ScaleFor(width(), height());
    const bool dark = form_.chart.settings.Helligkeit == kBlackGround;
    terms.look.scheme = dark ? LookScheme::Dark : LookScheme::Light;
    terms.roomy = width() >= kRoomyWidth;
    terms.compact = height() <= kCompactHeight;
    return terms;
}

void MainWindow::FollowTerms() {
    if (terms_ && *terms_ != WantedTerms()) QTimer::singleShot(0, this, [this] { LayOut(); });
}

void MainWindow::LayOut() {
    const Terms wanted = WantedTerms();
    if (terms_ && (*terms_ == wanted || QApplication::activeModalWidget() != nullptr ||
                   QApplication::activePopupWidget() != nullptr || chart_->IsDragging()))
        return;
    const QString focused = focusWidget() ? focusWidget()->objectName() : QString();
    if (!terms_ || terms_->look != wanted.look) ApplyLook(*qApp, wanted.look);
    terms_ = wanted;
    Build();
    if (auto* widget = focused.isEmpty() ? nullptr : findChild<QWidget*>(focused)) {
        widget->setFocus();
    }
}

void MainWindow::Build() {
    mirror_.Forget();
    delete tools_;
    delete point_view_;
    delete plant_view_;
    BuildPanels();
    BuildTools();
    auto* bar = new QMenuBar(this);
    FillMenus(form_, mirror_, *bar);
    mirror_.Describe(chart_, form_.controls.Label7);
    setMenuBar(bar);
    for (QLineEdit* field : findChildren<QLineEdit*>()) field->installEventFilter(this);
    mirror_.Mirror();
    // Laid out now and not in a later turn of the loop: the panels are placed beside the tools.
    bar->show();
    tools_->show();
    tools_->FollowContent();
    centralWidget()->layout()->activate();
    Refresh();
}

void MainWindow::BuildTools() {
    auto* column = new ToolColumn(form_, mirror_, terms_->compact, centralWidget());
    tools_ = new ContentScroll(column, centralWidget());
    centralWidget()->layout()->addWidget(tools_);
    tools_->FillHeight();
}

void MainWindow::BuildPanels() {
    point_view_ = MakePointPanelView(form_, mirror_, *chart_);
    plant_view_ = MakePlantPanelView(form_, mirror_, *chart_);
}

void MainWindow::showEvent(QShowEvent* event) {
    if (!terms_) LayOut();
    QMainWindow::showEvent(event);
}

void MainWindow::ShowFirstRunHint() {
    if (OpenPanel() != nullptr || !FirstRunHint::IsWanted()) return;
    new FirstRunHint(ShownText(form_.captions[Caption::FirstRunHint]), chart_);
}

// --- Form and window.

void MainWindow::Start() {
    started_ = true;
    TellSize();
    mirror_.Perform([this] { form_.Activate(); });
    LayOut();
}

void MainWindow::TellSize() { form_.Resize(centralWidget()->width(), centralWidget()->height()); }

void MainWindow::Refresh() {
    // "[*]" is the place of the mark for unsaved changes, and such signs in a title stand twice.
    QString title = ShownText(form_.title);
    title.replace(QStringLiteral("[*]"), QStringLiteral("[*][*]"));
    title += QStringLiteral("[*]");
    if (windowTitle() != title) setWindowTitle(title);
    if (isWindowModified() != form_.modified) setWindowModified(form_.modified);
    chart_->Sync();
    if (point_view_) point_view_->Place();
    if (plant_view_) plant_view_->Place();
    status_->Sync();
    FollowPanels();
    user_.FollowBeside();
    FollowTerms();
    if (form_.ended) close();
}

void MainWindow::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    if (!started_) return;
    if (event->spontaneous()) chart_->FollowEdge();
    // The layout has not run yet; the form is told the size that the centre will have.
    centralWidget()->layout()->activate();
    mirror_.Perform([this] { TellSize(); });
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (!form_.ended) {
        form_.ende_qv();
        mirror_.Mirror();
        user_.FollowBeside();
    }
    event->setAccepted(form_.ended);
}

void MainWindow::OpenProject(const std::filesystem::path& path) {
    mirror_.Perform([&] { form_.OpenProject(path); });
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (!ProjectIn(*event->mimeData()).isEmpty()) event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
    const QString path = ProjectIn(*event->mimeData());
    if (path.isEmpty()) return;
    event->acceptProposedAction();
    OpenProject(QFile::encodeName(path).toStdString());
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        const auto* key = static_cast<QKeyEvent*>(event);
        const bool ours = key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo);
        if (ours) return true;  // not accepted: it goes on to the menu's shortcuts
    }
    return QMainWindow::eventFilter(watched, event);
}

// --- The floating panels and the keys.

FloatingPanel* MainWindow::OpenPanel() const {
    if (point_view_ && form_.processes.point.Anlage1PN.visible) return point_view_;
    return plant_view_ && form_.processes.plant.Frame1.visible ? plant_view_ : nullptr;
}

// A panel that opens takes the focus, and one that closes leaves it to the chart: nobody has to
// look for it with the tab key.
void MainWindow::FollowPanels() {
    // While a panel is dragged its outline stands for it.
    if (form_.controls.Shape3.visible) return;
    FloatingPanel* open = OpenPanel();
    const Panel* panel = open ? &open->Shown() : nullptr;
    if (panel == followed_panel_) return;
    followed_panel_ = panel;
    if (open) {
        open->TakeFocus();
    } else {
        chart_->setFocus();
    }
}

bool MainWindow::Escape() {
    if (form_.controls.Shape3.visible) return false;
    if (form_.chart.controls.ZoomShape.visible) {
        mirror_.Perform([this] { form_.Pointer().DropFrame(); });
        return true;
    }
    FloatingPanel* open = OpenPanel();
    if (open) open->Close();
    return open != nullptr;
}

bool MainWindow::MovePanel(QPoint direction) {
    FloatingPanel* open = OpenPanel();
    const QWidget* focused = focusWidget();
    if (open == nullptr || focused == nullptr) return false;
    // The fields beside the chart hold texts, in which these keys go from word to word.
    if (focused != chart_ && !chart_->isAncestorOf(focused)) return false;
    open->MoveBy(direction);
    return true;
}

}  // namespace zandrell
