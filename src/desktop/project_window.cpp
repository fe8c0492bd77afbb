#include "desktop/project_window.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QSplitter>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

#include "desktop/look.h"
#include "desktop/panel_builder.h"

namespace zandrell {
namespace {

constexpr int kFolderWidth = 190, kFileWidth = 250, kPreviewWidth = 290, kListHeight = 260;
constexpr int kBoxCharacters = 12;
constexpr int kIndent = 12;  // pixels at scale 1

int DepthOf(const QString& path) {
    return path == QStringLiteral("/") ? 0 : static_cast<int>(path.count(QLatin1Char('/')));
}

// Shows a list of whole paths as a tree: the last name of each, indented.
class FolderDelegate : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

  protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        const QString path = index.data().toString();
        const QString name = QFileInfo(path).fileName();
        option->text = name.isEmpty() ? path : name;
        option->rect.adjust(DepthOf(path) * Scaled(*option->widget, kIndent), 0, 0, 0);
    }
};

QListWidget* MakeList(QWidget* parent, int width) {
    auto* list = new QListWidget(parent);
    list->setMinimumSize(Scaled(*list, width), Scaled(*list, kListHeight));
    list->setUniformItemSizes(true);
    list->setTextElideMode(Qt::ElideMiddle);
    list->setSpacing(1);
    return list;
}

}  // namespace

ProjectWindow::ProjectWindow(ProjectDialog& form, Pictures& pictures, QWidget* parent)
    : ModalWindow(form, pictures, parent), dialog_(form) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(18, 14, 18, 14);
    layout->setSpacing(10);
    layout->addLayout(MakeFolderPath());
    layout->addLayout(MakeNewFolder());
    auto* columns = new QSplitter(this);
    columns->setChildrenCollapsible(false);
    columns->addWidget(MakeFolders());
    columns->addWidget(MakeFiles());
    columns->addWidget(MakePreview());
    columns->setStretchFactor(1, 1);
    layout->addWidget(columns, 1);
    layout->addLayout(MakeName());
    // Who opens a file looks for it in the list, who saves one gives it a name.
    const bool nameless = dialog_.ProNam.text.empty() || dialog_.ProNam.text.starts_with('.');
    if (nameless && !dialog_.GivesName() && !dialog_.List1.items.empty()) {
        files_->setFocus();
    } else {
        name_->setFocus();
        if (nameless) name_->selectAll();  // typing replaces the bare extension
    }
}

QLayout* ProjectWindow::MakeFolderPath() {
    auto* row = new QHBoxLayout;
    PanelBuilder build(mirror_, this);
    auto* drive = new QComboBox(this);
    drive->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    drive->setMinimumContentsLength(kBoxCharacters);
    mirror_.Bind(drive, dialog_.Drive1);
    row->addWidget(drive);
    path_ = build.Field(dialog_.Text1, dialog_.Label1);
    path_->setAlignment(Qt::AlignLeft);
    path_->setMaxLength(4096);
    path_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    row->addWidget(path_, 1);
    row->addWidget(build.PictureButton(dialog_.Command1));
    return row;
}

// Stands below the path, where the name of the new folder is typed.
QLayout* ProjectWindow::MakeNewFolder() {
    auto* row = new QHBoxLayout;
    auto* panel = new QWidget(this);
    mirror_.BindPanel(panel, dialog_.Picture2);
    auto* inside = new QHBoxLayout(panel);
    inside->setContentsMargins(0, 0, 0, 0);
    PanelBuilder build(mirror_, panel);
    inside->addStretch(1);
    inside->addWidget(build.PictureButton(dialog_.Ok_butt));
    inside->addWidget(build.PictureButton(dialog_.a_butt));
    row->addWidget(panel, 1);
    return row;
}

QWidget* ProjectWindow::MakeFolders() {
    auto* folders = MakeList(this, kFolderWidth);
    folders->setItemDelegate(new FolderDelegate(folders));
    mirror_.Bind(folders, dialog_.Dir1, ListChoice::Activation);
    return folders;
}

QWidget* ProjectWindow::MakeFiles() {
    auto* group = new QWidget(this);
    auto* layout = new QVBoxLayout(group);
    layout->setContentsMargins(0, 0, 0, 0);
    PanelBuilder build(mirror_, group);
    auto* row = new QHBoxLayout;
    row->addWidget(build.Caption(dialog_.filter_label));
    auto* filter = build.Field(dialog_.filter, dialog_.filter_label);
    filter->setAlignment(Qt::AlignLeft);
    filter->setClearButtonEnabled(true);
    row->addWidget(filter, 1);
    row->addWidget(build.Caption(dialog_.sort_label));
    auto* order = new QComboBox(group);
    order->setMinimumContentsLength(kBoxCharacters);
    mirror_.Bind(order, dialog_.order);
    mirror_.Describe(order, dialog_.sort_label);
    row->addWidget(order);
    layout->addLayout(row);
    files_ = MakeList(group, kFileWidth);
    // On the way to another field the list must not put a foreign name in place of the typed one.
    if (dialog_.GivesName()) files_->setProperty("entered_quietly", true);
    mirror_.Bind(files_, dialog_.List1);
    mirror_.Describe(files_, dialog_.Label1);
    layout->addWidget(files_, 1);
    return group;
}

QWidget* ProjectWindow::MakePreview() {
    auto* group = new QWidget(this);
    group->setFixedWidth(Scaled(*group, kPreviewWidth));
    auto* row = new QHBoxLayout(group);
    PanelBuilder build(mirror_, group);
    for (const Label* column : {&dialog_.preview_words, &dialog_.preview_figures}) {
        auto* label = build.Caption(*column);
        label->setTextFormat(Qt::PlainText);
        label->setAlignment(Qt::AlignTop | Qt::AlignLeft);
        row->addWidget(label, 0, Qt::AlignTop);
    }
    row->addStretch(1);
    return group;
}

QLayout* ProjectWindow::MakeName() {
    auto* row = new QHBoxLayout;
    PanelBuilder build(mirror_, this);
    row->addWidget(build.Caption(dialog_.Label1));
    name_ = build.Field(dialog_.ProNam, dialog_.Label1);
    name_->setAlignment(Qt::AlignLeft);
    name_->setMaxLength(4096);
    name_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    row->addWidget(name_, 1);
    row->addWidget(build.PictureButton(dialog_.Command3D1, &dialog_.Command3D1_l));
    row->addWidget(build.PictureButton(dialog_.Command3D2, &dialog_.Command3D2_l));
    return row;
}

void ProjectWindow::Refreshed() {
    const bool asks = dialog_.Picture2.visible;
    if (asks && !asks_for_folder_) {
        path_->setFocus();
        path_->end(false);
    }
    asks_for_folder_ = asks;
}

}  // namespace zandrell
