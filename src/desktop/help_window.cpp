#include "desktop/help_window.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QScreen>
#include <QVBoxLayout>

#include "desktop/look.h"
#include "desktop/panel_builder.h"

namespace zandrell {
namespace {

constexpr QSize kNominalSize{720, 560};  // pixels at scale 1
constexpr int kMargin = 12;              // pixels, of the text

// The middle button would paste what is selected in the text itself, and the toolkit falls over a
// selection that the paste has just taken away.
class HelpText : public QPlainTextEdit {
  public:
    using QPlainTextEdit::QPlainTextEdit;

  protected:
    void mousePressEvent(QMouseEvent* event) override {
        if (event->button() != Qt::MiddleButton) QPlainTextEdit::mousePressEvent(event);
    }
    void mouseReleaseEvent(QMouseEvent* event) override {
        if (event->button() != Qt::MiddleButton) QPlainTextEdit::mouseReleaseEvent(event);
    }
};

}  // namespace

HelpWindow::HelpWindow(HelpForm& form, Pictures& pictures, QWidget* parent)
    : ModalWindow(form, pictures, parent) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(18, 14, 18, 14);
    layout->setSpacing(12);
    auto* text = new HelpText(this);
    text->setTabChangesFocus(true);
    text->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    text->document()->setDocumentMargin(kMargin);
    mirror_.Bind(text, form.InfoText);
    text->setAccessibleName(ShownText(form.title));
    layout->addWidget(text, 1);
    auto* row = new QHBoxLayout;
    PanelBuilder build(mirror_, this);
    for (const Label* label : {&form.Label1, &form.Label2}) {
        auto* caption = build.Caption(*label);
        caption->setTextInteractionFlags(Qt::TextSelectableByMouse);
        row->addWidget(caption);
    }
    row->addStretch(1);
    row->addWidget(build.PictureButton(form.Command3D2, &form.Command3D2_l));
    row->addWidget(build.PictureButton(form.Command3D1));
    layout->addLayout(row);
    const QSize screen = QGuiApplication::primaryScreen()->availableSize();
    resize(QSize(Scaled(*this, kNominalSize.width()), Scaled(*this, kNominalSize.height()))
               .boundedTo(screen));
}

}  // namespace zandrell
