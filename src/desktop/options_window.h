#pragma once

#include "base/captions.h"
#include "canvas/recording_canvas.h"
#include "desktop/modal_window.h"
#include "shell/options_form.h"

namespace zandrell {

// The window with the settings of the chart. The two colour schemes are shown by samples of the
// present picture.
class OptionsWindow : public ModalWindow {
  public:
    // All of it outlives the window.
    OptionsWindow(OptionsForm& form, const Captions& captions, const RecordingCanvas& picture,
                  Pictures& pictures, QWidget* parent);

  private:
    QWidget* MakeFields();
    QWidget* MakeKinds(const QString& heading);
    QWidget* MakeSchemes(const QString& heading, const RecordingCanvas& picture);
    QWidget* MakeButtons();

    OptionsForm& options_;
};

}  // namespace zandrell
