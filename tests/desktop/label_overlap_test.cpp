// Charts of many settings with a process on them: no label covers another one, a mark or the
// saturation line.
#include <gtest/gtest.h>

#include <QFontMetricsF>
#include <sstream>

#include "desktop/window_session.h"
#include "painter/chart_drawing.h"
#include "shell/form_script.h"

namespace zandrell {
namespace {

constexpr const char* kPlant =
    "set vhAnlage 10000\nset aussenAnt 3\nreturn aussenAnt\nset tabLuft 26\nset PHIAbluft 50\n"
    "set Taus 32\nset PhiAussen 40\nset tKA 12\nset phiKanal 95\nset TZuluft 18\n"
    "set PHIZuluft 64\nset dtVent1 1\nset dtVent2 0.5\nclick AnlageButt\n";
constexpr const char* kWinterPlant =
    "set vhAnlage 10000\nset aussenAnt 3\nreturn aussenAnt\nset tabLuft 22\nset PHIAbluft 45\n"
    "set Taus -10\nset PhiAussen 80\nset tKA 12\nset phiKanal 95\nset TZuluft 24\n"
    "set PHIZuluft 40\nset dtVent1 1\nset dtVent2 0.5\nclick AnlageButt\n";
constexpr const char* kMixing =
    "set Temp1 21\nset relF1 50\nset Temp2 20\nset relF2 52\nset LuftM1 1000\nset LuftM2 900\n"
    "click MischButt\n";
// Two states next to each other, at the lower left corner.
constexpr const char* kClose =
    "set Temp1 1\nset relF1 90\nset Temp2 0\nset relF2 95\nset LuftM1 1000\nclick ZAButt\n";

// A frame and a click into it.
constexpr const char* kZoom =
    "pointer press 400 120\npointer move 1300 420\npointer release 1300 420\n"
    "pointer move 800 300\npointer press 800 300\n";

// One of many charts: the settings go through their values at different paces.
struct Sample {
    std::string settings;
    const char* script;
    QSize size;
};

Sample SampleOf(int i) {
    const char* const ranges[] = {"-20,40,0,40", "-50,100,0,100", "-20,60,0,150", "0,25,0,12",
                                  "-10,50,0,30", "-30,30,0,9",    "10,45,0,25"};
    const char* const pressures[] = {"1.013", "0.9", "1.05", "0.8"};
    const char* const scripts[] = {"", kPlant, kMixing, kWinterPlant, kClose, kZoom};
    const QSize sizes[] = {{1024, 700}, {1280, 800}, {1920, 1080}, {3840, 2160}, {640, 480}};
    std::ostringstream settings;
    settings << pressures[i % 4] << ',' << ranges[i % 7] << ",0," << i / 2 % 2 << ',' << i % 2
             << ',' << i / 3 % 2;
    return {settings.str(), scripts[i % 6], sizes[i / 5 % 5]};
}

struct Count {
    int pictures = 0, texts = 0, left_out = 0, far = 0, process_labels = 0;
};

QRectF Rect(const LabelBox& box) {
    return {QPointF(box.left, box.top), QPointF(box.right, box.bottom)};
}

void Look(const MainForm& form, const Sample& sample, const std::string& name, Count& count) {
    const ChartView view(form.chart.picture, QRectF(QPointF(), sample.size), 1);
    const TextLayout layout(form.chart.picture, view);
    const OverlayDrawing drawing = VisibleItems(form.overlay, view, layout);
    struct Named {
        QRectF box;
        QString text;
    };
    std::vector<Named> boxes;
    for (const LaidText& laid : layout.Texts()) {
        boxes.push_back({Rect(laid.box), laid.text});
        const double width = QFontMetricsF(view.Font()).horizontalAdvance(laid.text);
        EXPECT_NEAR(laid.box.right - laid.box.left, width, 0.01) << name;
        EXPECT_GE(laid.box.bottom - laid.box.top, view.Font().pixelSize()) << name;
        count.far += laid.leader.has_value();
    }
    for (const auto& label : drawing.labels) {
        boxes.push_back({Rect(label.placed.box), QString::fromStdString(label.text)});
        EXPECT_TRUE(label.placed.shown) << name;
        ++count.process_labels;
    }
    for (const auto& mark : drawing.marks) {
        const QPointF reach(MarkRadius(view), MarkRadius(view));
        const QPointF centre = view.ToDevice(mark.centre);
        for (std::size_t i = layout.Texts().size(); i < boxes.size(); ++i) {
            EXPECT_FALSE(boxes[i].box.intersects({centre - reach, centre + reach}))
                << name << ": " << boxes[i].text.toStdString() << " on a mark";
        }
    }
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        const QRectF& box = boxes[i].box;
        EXPECT_TRUE(QRectF(QPointF(), sample.size).contains(box))
            << name << ": " << boxes[i].text.toStdString();
        for (std::size_t k = 0; k < i; ++k) {
            EXPECT_FALSE(box.intersects(boxes[k].box))
                << name << ": " << boxes[i].text.toStdString() << " over "
                << boxes[k].text.toStdString();
        }
        for (const ClearLine& line : layout.Saturation()) {
            EXPECT_FALSE(line.Crosses({box.left(), box.top(), box.right(), box.bottom()}))
                << name << ": " << boxes[i].text.toStdString() << " on the saturation line";
        }
    }
    int wanted = 0;
    for (const auto& operation : form.chart.picture.Operations()) {
        wanted += operation.stroke == Stroke::Text && IsOnCanvas({operation.x1, operation.y1}, 8);
    }
    ++count.pictures;
    count.texts += wanted;
    count.left_out += wanted - static_cast<int>(layout.Texts().size());
}

TEST(Labels, NoneCoversAnotherOneInManySettings) {
    TheApplication();
    Count count;
    for (int i = 0; i < 120; ++i) {
        const Sample sample = SampleOf(i);
        const TestFolder folder;
        folder.CopyWholeSet();
        folder.Write("qv_par.dat", sample.settings);
        std::istringstream script(sample.script);
        std::ostringstream dumps;
        ScriptedUser user(script, dumps);
        DataFiles files(folder.Path());
        MainForm form(user, files, folder.Path());
        std::string error;
        ASSERT_TRUE(user.Run(form, error, {sample.size.width(), sample.size.height()})) << error;
        Look(form, sample, std::to_string(i) + " (" + sample.settings + ")", count);
    }
    EXPECT_EQ(count.pictures, 120);
    EXPECT_GT(count.process_labels, 100);
    EXPECT_LT(count.left_out, 0.02 * count.texts) << "of " << count.texts;
    EXPECT_LT(count.far, 0.1 * count.texts);
    RecordProperty("left_out", count.left_out);
    std::cout << count.texts << " texts, " << count.left_out << " left out, " << count.far
              << " far, " << count.process_labels << " of processes\n";
}

}  // namespace
}  // namespace zandrell
