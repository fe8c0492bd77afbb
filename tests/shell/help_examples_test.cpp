// The help tells figures. Each is compared with what the program gives after the acts in front of
// it under the delivered settings, so that no example goes stale.

#include "base/text_encoding.h"
#include "script_session.h"
#include "tools/help_source.h"

namespace zandrell {
namespace {

// Of a control its text, of a number its shortest form.
std::string ShownAs(const Json& value) {
    if (value.is_number()) return value.dump();
    std::string text = value.at("text").get<std::string>();
    std::erase_if(text, [](char c) { return c == '\r' || c == '\n'; });
    return Trimmed(text);
}

void CompareFigures(const std::string& tag, const help_source::TopicSource& topic,
                    std::size_t& compared) {
    std::string script;
    std::size_t act = 0;
    for (const auto& figure : topic.figures) {
        while (act < figure.acts) script += topic.acts[act++] + "\n";
        script += "dump " + figure.control + "\n";
    }
    ScriptSession session;
    std::filesystem::copy(std::filesystem::path(ZANDRELL_SOURCE_DATA) / "qv_par.dat",
                          session.folder / "qv_par.dat",
                          std::filesystem::copy_options::overwrite_existing);
    const auto dumps = session.Run(script);
    ASSERT_EQ(dumps.size(), topic.figures.size()) << tag << " from line " << topic.line;
    for (std::size_t i = 0; i < dumps.size(); ++i) {
        const auto& figure = topic.figures[i];
        EXPECT_EQ(ShownAs(dumps[i].at(figure.control)), figure.text)
            << tag << ".txt:" << figure.line << " " << figure.control;
        ++compared;
    }
}

TEST(HelpExamples, FiguresAreThoseOfTheProgram) {
    for (const std::string tag : {"ENG", "DEU"}) {
        const auto topics = help_source::Reader(std::filesystem::path(ZANDRELL_SOURCE_DATA) /
                                                "help" / (tag + ".txt"))
                                .Read();
        std::size_t compared = 0;
        for (const auto& [name, topic] : topics) CompareFigures(tag, topic, compared);
        EXPECT_GE(compared, 25U) << tag;
    }
}

}  // namespace
}  // namespace zandrell
