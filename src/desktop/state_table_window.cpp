#include "desktop/state_table_window.h"

#include <QClipboard>
#include <QFileDialog>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QScreen>
#include <QVBoxLayout>

#include "desktop/look.h"
#include "desktop/panel_builder.h"

namespace zandrell {
namespace {

constexpr QSize kNominalSize{1180, 420};  // pixels at scale 1

}  // namespace

std::string AskForCsv(QWidget* parent, const QString& title) {
    QFileDialog dialog(parent, title, {}, QStringLiteral("CSV (*.csv)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("csv"));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
    return dialog.selectedFiles().constFirst().toStdString();
}

StateTableWindow::StateTableWindow(StateTableForm& form, Pictures& pictures, QWidget* parent)
    : ModalWindow(form, pictures, parent), table_(form) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(18, 14, 18, 14);
    layout->setSpacing(12);
    grid_ = new GridView(form.States, mirror_, this);
    grid_->setAccessibleName(ShownText(form.title));
    layout->addWidget(grid_, 1);
    auto* row = new QHBoxLayout;
    PanelBuilder build(mirror_, this);
    row->addWidget(build.Caption(form.Message), 1);
    for (const Button* button : {&form.Copy, &form.Save}) {
        auto* shown = new QPushButton(this);
        shown->setAutoDefault(false);
        mirror_.Bind(shown, *button);
        row->addWidget(shown);
    }
    row->addWidget(build.PictureButton(form.Close));
    layout->addLayout(row);
    form.copy_text = [](const std::string& text) {
        QGuiApplication::clipboard()->setText(QString::fromStdString(text));
    };
    form.ask_file = [this] { return AskForCsv(this, ShownText(table_.Save.text)); };
    const QSize room =
        parent ? parent->window()->size() : QGuiApplication::primaryScreen()->availableSize();
    resize(QSize(Scaled(*this, kNominalSize.width()), Scaled(*this, kNominalSize.height()))
               .boundedTo(room));
    Refreshed();
}

// The form outlives the window.
StateTableWindow::~StateTableWindow() {
    table_.copy_text = nullptr;
    table_.ask_file = nullptr;
}

void StateTableWindow::Refreshed() { grid_->MirrorGrid(); }

}  // namespace zandrell
