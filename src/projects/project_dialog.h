#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "forms/choice_list.h"
#include "forms/window_form.h"
#include "projects/dialog_modes.h"
#include "projects/project_store.h"

namespace zandrell {

// The window `ProjLaden`: the suite's one file dialog. What it does is the request in `DialogMode`,
// which its opener sets before.
class ProjectDialog : public ModalForm {
  public:
    // Both outlive the dialog.
    ProjectDialog(const ProjectContext& context, ProjectStore& store);

    Label Label1{"Label1"};  // prompt
    TextField ProNam{"ProNam"};
    ListBox List1{"List1"}, File1{"File1"};  // the visible list; all files of the folder
    ListBox Dir1{"Dir1"};                    // whole paths, the folder itself is chosen
    ComboBox Drive1{"Drive1"};               // where disks are mounted
    TextField Text1{"Text1"};                // folder path
    Button Command1{"Command1"};             // new folder
    Panel Picture2{"Picture2"};              // asks for the new folder's name
    Button Ok_butt{"Ok_butt", "OKcap.bmp"}, a_butt{"a_butt", "abcap.bmp"};
    Button Command3D1{"Command3D1", "OKcap.bmp"}, Command3D1_l{"Command3D1_l"};
    Button Command3D2{"Command3D2", "abcap.bmp"}, Command3D2_l{"Command3D2_l"};
    // What the list shows, and of what it shows it.
    Label filter_label{"FilterLabel"}, sort_label{"SortLabel"};
    TextField filter{"Filter"};
    ComboBox order{"Order"};
    Label preview_words{"PreviewWords"}, preview_figures{"PreviewFigures"};

    // Fills the window for the request in `DialogMode`. The process is in `BrowseFolder` from here
    // on, until the window closes.
    void Open();
    // Whether a file is given its name here, instead of one being looked for in the list.
    bool GivesName() const;

  private:
    void ListControls();
    void BindActs();
    void SetCaptions();
    void ChangeFolder(const std::string& folder);
    void ListProjects();
    void ShowList();
    void ShowChosen();
    void ClearChosen();
    void New_Folder();
    void EnterTypedFolder();
    void Accept();
    void LoadProject();
    void SaveProject();
    void Delete();
    void Leave();
    std::filesystem::path PathOf(const std::string& name) const;
    bool NamesNothing(const std::string& name) const;

    ProjectContext context_;
    ProjectStore& store_;
    const DialogModeRow* mode_ = nullptr;  // null: a request that is not known
    std::filesystem::path start_folder_;   // StartFolder
    std::string browse_folder_;            // BrowseFolder
};

}  // namespace zandrell
