#pragma once

#include "base/captions.h"
#include "base/data_files.h"
#include "base/shared_values.h"
#include "chart/chart_settings.h"
#include "forms/user_interface.h"
#include "forms/window_form.h"
#include "processes/field_notes.h"

namespace zandrell {

class StateSolver;

// The window `qvopt` with the settings of the chart.
class OptionsForm : public ModalForm {
  public:
    // All of it outlives the form.
    OptionsForm(const DataFiles& files, SharedValues& shared, const Captions& captions,
                StateSolver& solver, UserInterface& user);

    Label OptPNUeb{"OptPNUeb"};
    TextField absD{"absD"}, geoH{"geoH"}, qvTmind{"qvTmind"}, qvtmaxi{"qvtmaxi"}, Xmini{"Xmini"},
        Xmaxi{"Xmaxi"};
    Label pressure_label{"absDLabel"}, height_label{"geoHLabel"}, tmin_label{"qvTmindLabel"},
        tmax_label{"qvtmaxiLabel"}, xmin_label{"XminiLabel"}, xmax_label{"XmaxiLabel"};
    OptionButton Option3d1{"Option3d1", true}, Option3d2{"Option3d2"};  // Mollier, Carrier
    OptionButton Black{"Black"}, white{"white", true};
    Panel Panel3D12{"Panel3D12"}, Panel3D13{"Panel3D13"};  // sample pictures of the two schemes
    CheckBox ExactBox{"ExactBox"};                         // Convention::Exact instead of Suite
    CheckBox FogLinesBox{"FogLinesBox"};                   // only with ExactBox
    Button Command3D1{"Command3D1", "OKcap.bmp"}, Command3D1_l{"Command3D1_l"};
    Button Command3D5{"Command3D5", "abcap.bmp"}, Command3D5_l{"Command3D5_l"};

    // Fills the window from qv_par.dat.
    void Open();

  private:
    static constexpr double kLowestHeight = -200, kHighestHeight = 3000;  // m, both exclusive

    void SetCaptions();
    void ListControls();
    void BindActs();
    void TakeHeight();
    int FeuchteGrenze(bool write_field);
    void Opt_speich();
    bool PassesTests(const ChartSettings& typed);
    // What the suite's tests let through and no chart can show is refused under Exact: each such
    // field is marked, and a message tells all of them.
    bool PassesExactTests();
    std::optional<Refusal> ExactRefusalOf(const TextField& field) const;
    bool HeightCounts() const { return ExactBox.on && height_typed_; }

    const DataFiles& files_;
    SharedValues& shared_;
    const Captions& captions_;
    StateSolver& solver_;
    UserInterface& user_;
    bool height_typed_ = false;  // since the last pressure, and no pressure follows from it yet
};

}  // namespace zandrell
