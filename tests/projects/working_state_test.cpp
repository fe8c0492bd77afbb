#include "projects/working_state.h"

#include <gtest/gtest.h>

#include "support/test_folder.h"

namespace zandrell {
namespace {

struct Fields {
    std::vector<TextField> fields = std::vector<TextField>(17, TextField("field"));
    OptionButton steam{"Option3D3", true}, water{"Option3D4"};
    TextField coil{"phiKanal"};

    WorkingStateFields Refer() {
        WorkingStateFields refer{{}, &steam, &water, &coil};
        for (std::size_t i = 0; i < 17; ++i) refer.fields[i] = &fields[i];
        return refer;
    }
};

TEST(WorkingState, WritesTwentyLinesThatReadBack) {
    const TestFolder folder;
    const DataFiles files(folder.Path());
    Fields out;
    for (std::size_t i = 0; i < 17; ++i) out.fields[i].text = std::to_string(i) + ",5";
    out.coil.text = " 90";
    Choose(out.water, out.steam);
    ASSERT_EQ(ArbeitsfelderSpeichern(files, "QV_ACT.dat", out.Refer()), FileStatus::Ok);
    const std::string first = folder.Read("QV_ACT.dat");
    EXPECT_TRUE(first.starts_with("\"0,5\"\r\n\"1,5\"\r\n"));
    EXPECT_TRUE(first.ends_with("\"16,5\"\r\n#FALSE#\r\n#TRUE#\r\n\" 90\"\r\n"));
    ASSERT_EQ(ArbeitsfelderSpeichern(files, "QV_ACT.dat", out.Refer()), FileStatus::Ok);
    EXPECT_EQ(folder.Read("QV_ACT.dat"), first);
    Fields in;
    EXPECT_EQ(ArbeitsfelderLaden(files, "QV_ACT.dat", in.Refer()), FileStatus::Ok);
    EXPECT_EQ(in.fields[16].text, "16,5");
    EXPECT_TRUE(in.water.on);
    EXPECT_FALSE(in.steam.on);
    EXPECT_EQ(in.coil.text, " 90");
}

TEST(WorkingState, ShortOlderAndUnreadableFiles) {
    const TestFolder folder;
    const DataFiles files(folder.Path());
    Fields state;
    const auto load = [&](const std::string& content) {
        state = Fields{};
        state.fields[0].text = state.fields[16].text = "typed";
        folder.Write("QV_ACT.dat", content);
        return ArbeitsfelderLaden(files, "QV_ACT.dat", state.Refer());
    };
    EXPECT_EQ(load("\"12\"\r\n"), FileStatus::Ok);
    EXPECT_EQ(state.fields[0].text, "12");
    EXPECT_EQ(state.fields[16].text, "");
    EXPECT_EQ(state.coil.text, "95");
    EXPECT_TRUE(state.steam.on) << "options stay";
    std::string nineteen;
    for (int i = 0; i < 19; ++i) nineteen += "\"1\"\r\n";
    load(nineteen + "\" 0\"\r\n");
    EXPECT_EQ(state.coil.text, "95");
    EXPECT_EQ(load(std::string(5U << 20U, '"')), FileStatus::Malformed);
    EXPECT_EQ(state.fields[0].text, "typed");
}

}  // namespace
}  // namespace zandrell
