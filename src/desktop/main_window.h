#pragma once

#include <QMainWindow>
#include <QPointer>
#include <filesystem>

#include "desktop/chart_widget.h"
#include "desktop/content_scroll.h"
#include "desktop/floating_panel.h"
#include "desktop/form_mirror.h"
#include "desktop/look.h"
#include "desktop/pictures.h"
#include "desktop/qt_printing.h"
#include "desktop/qt_user.h"
#include "desktop/qt_viewer.h"
#include "desktop/status_view.h"
#include "desktop/window_keys.h"
#include "shell/main_form.h"

namespace zandrell {

// The main window: it mirrors the form `start`.
class MainWindow : public QMainWindow {
  public:
    // All of it outlives the window. Requires: the form is loaded.
    MainWindow(MainForm& form, const DataFiles& files, QtUser& user);

    // Tells the form the window's size and activates it; once, when the window has its size.
    void Start();

    // Of the program's arguments or a file manager.
    void OpenProject(const std::filesystem::path& path);

    FormMirror& Mirror() { return mirror_; }
    ChartWidget& Chart() { return *chart_; }
    // Writes all that differs between form and window.
    void Refresh();
    // Makes everything but the chart anew where the window's size or the chart's ground asks for
    // another scale, other colours or less room. It happens by itself, but not inside an act: the
    // widget that started it must outlive it.
    void LayOut();
    // On an empty chart, for an account that has not seen it yet.
    void ShowFirstRunHint();

  protected:
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    // A project file that is dropped on the window is opened.
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    // Undo and redo are the window's, not those of the field with the focus.
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    // What the layout was made for.
    struct Terms {
        Look look;
        bool roomy = false;    // bars can be long
        bool compact = false;  // the tools have little height
        bool operator==(const Terms&) const = default;
    };

    Terms WantedTerms() const;
    void FollowTerms();
    void Build();
    void BuildTools();
    void BuildPanels();
    void FollowPanels();
    FloatingPanel* OpenPanel() const;
    bool Escape();
    bool MovePanel(QPoint direction);
    void TellSize();

    MainForm& form_;
    QtUser& user_;
    Pictures pictures_;
    QtPrinting printing_;
    QtViewer viewer_;
    FormMirror mirror_;
    WindowKeys keys_;
    StatusView* status_ = nullptr;
    ChartWidget* chart_ = nullptr;
    QPointer<ContentScroll> tools_;
    QPointer<FloatingPanel> point_view_, plant_view_;
    std::optional<Terms> terms_;  // empty: nothing is built yet
    const Panel* followed_panel_ = nullptr;
    bool started_ = false;
};

}  // namespace zandrell
