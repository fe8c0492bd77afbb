#pragma once

#include <QMainWindow>

#include "desktop/chart_widget.h"
#include "desktop/floating_panel.h"
#include "desktop/form_mirror.h"
#include "desktop/pictures.h"
#include "desktop/qt_printing.h"
#include "desktop/qt_user.h"
#include "desktop/qt_viewer.h"
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
    void OpenProject(const QString& path);

    FormMirror& Mirror() { return mirror_; }
    ChartWidget& Chart() { return *chart_; }
    // Writes all that differs between form and window.
    void Refresh();

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    // A project file that is dropped on the window is opened.
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    // Undo and redo are the window's, not those of the field with the focus.
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void MakeMenus();
    void MakePanels();
    void TellSize();

    MainForm& form_;
    Pictures pictures_;
    QtPrinting printing_;
    QtViewer viewer_;
    FormMirror mirror_;
    ChartWidget* chart_ = nullptr;
    FloatingPanel* point_view_ = nullptr;
    FloatingPanel* plant_view_ = nullptr;
    bool started_ = false;
};

}  // namespace zandrell
