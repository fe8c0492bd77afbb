#pragma once

#include <string>

#include "base/captions.h"
#include "base/data_files.h"
#include "base/shared_values.h"
#include "forms/user_interface.h"
#include "forms/window_form.h"
#include "help/help_topics.h"
#include "help/viewer.h"

namespace zandrell {

// The window `Hilfebox`: the text of a topic, which the user may rewrite and save back.
class HelpForm : public ModalForm {
  public:
    // All of it outlives the form.
    HelpForm(DataFiles& files, SharedValues& shared, const Captions& captions, UserInterface& user);

    TextField InfoText{"InfoText"};
    Label Label1{"Label1"}, Label2{"Label2"};
    Panel Frame3d1{"Frame3d1"};
    Button Command3D1{"Command3D1", "OKcap.bmp"};
    Button Command3D2{"Command3D2", "pscap.bmp"}, Command3D2_l{"Command3D2_l"};
    ViewerHost* viewer = nullptr;

    // Shows the topic whose text stands in `DateText`. A topic that is not known shows nothing.
    void ShowHelp();

    // Fills `InfoText` from the records of the topic's file; with `withPicture` 1 the viewer starts
    // too.
    void ShowTopic(int first, int count, int withPicture, const std::string& pictureName,
                   const std::string& topic);
    // Writes `InfoText` back. A text beyond count * 127 bytes is cut without a warning. When the
    // file cannot be written a message says so, and the window and its text stay.
    void SaveTopic(int first, int count);

  private:
    void SetCaptions(const std::string& topic);
    std::string FileName() const;
    void Close();

    DataFiles& files_;
    SharedValues& shared_;
    const Captions& captions_;
    UserInterface& user_;
    HelpPlace place_;
};

}  // namespace zandrell
