// The house has floors: an include points down, never up and never to a neighbour. Qt lives at the
// top, number text at the bottom.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "source_rules.h"

namespace zandrell {
namespace {

using testing::IsEmpty;

TEST(Layers, TheHouseKeepsItsRules) {
    const auto sources = AllSources();
    ASSERT_GT(sources.size(), 50U);
    for (const auto& source : sources) {
        EXPECT_THAT(IncludeBreaches(source), IsEmpty());
        EXPECT_THAT(NumberBreaches(source), IsEmpty());
    }
    EXPECT_THAT(UnusedNumberExceptions(sources), IsEmpty());
}

TEST(Layers, AnIncludeIsUnderstoodInEverySpelling) {
    const struct {
        const char *file, *text;
        std::size_t breaches;
    } cases[] = {
        {"chart/a.cpp", "#include \"processes/plant.h\"\n", 1},
        {"chart/a.cpp", "#include <processes/plant.h>\n", 1},
        {"chart/a.cpp", "#include \"../processes/plant.h\"\n", 1},
        {"chart/a.cpp", "#include \"../chart/./../processes/plant.h\"\n", 1},
        {"chart/a.cpp", "#include \"../../src/processes/plant.h\"\n", 1},
        {"chart/a.cpp", "    #  include\t\"processes/plant.h\"  // why not\n", 1},
        {"chart/a.cpp", "/* x */ #include \"processes/plant.h\"\n", 1},
        {"chart/a.cpp", "#inc\\\nlude \"processes/plant.h\"\n", 1},
        {"chart/a.cpp", "#define HEADER \"processes/plant.h\"\n#include HEADER\n", 1},
        {"chart/detail/a.h", "#include \"../../processes/plant.h\"\n", 1},
        {"chart/a.cpp", "#include \"processes/made_at_build_time.h\"\n", 1},
        {"chart/a.cpp", "#include \"chart/overlay.h\"\n#include \"overlay.h\"\n", 0},
        {"chart/a.cpp", "#include <vector>\n#include \"base/number_text.h\"\n", 0},
        {"chart/a.cpp", "// #include \"processes/plant.h\"\n", 0},
        {"chart/a.cpp", "/*\n#include \"processes/plant.h\"\n*/\n", 0},
        {"chart/a.cpp", "#include <QString>\n", 1},
        {"chart/a.cpp", "#include <QtCore/QString>\n", 1},
        {"chart/a.cpp", "#include \"qstring.h\"\n", 1},
        {"painter/a.cpp", "#include <QString>\n", 0},
        {"painter/a.cpp", "#include \"shell/main_form.h\"\n", 1},
        {"painter/a.cpp", "#include \"../base/number_text.h\"\n", 1},
        {"attic/a.cpp", "", 1},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(IncludeBreaches({c.file, c.text}).size(), c.breaches) << c.file << ": " << c.text;
    }
}

TEST(Layers, RoomsToComeHaveTheirFloor) {
    for (const char* room : {"selection", "printing", "help", "projects"}) {
        const std::string file = std::string(room) + "/a.cpp";
        EXPECT_THAT(IncludeBreaches({file, "#include \"chart/overlay.h\"\n"}), IsEmpty());
        EXPECT_EQ(IncludeBreaches({file, "#include \"shell/main_form.h\"\n"}).size(), 1U) << room;
        const std::string from_above = "#include \"" + std::string(room) + "/form.h\"\n";
        EXPECT_THAT(IncludeBreaches({"shell/a.cpp", from_above}), IsEmpty());
        EXPECT_EQ(IncludeBreaches({"chart/a.cpp", from_above}).size(), 1U) << room;
    }
}

TEST(Layers, NumbersAreCaughtInEveryDisguise) {
    for (const char* line : {"text = std::to_string(v);",
                             "std::sscanf(t, \"%lf\", &v);",
                             "v = strtod(t, nullptr);",
                             "v = std::stod (text);",
                             "label = QStringLiteral(\"%1\").arg(v);",
                             "QString::number(v)",
                             "text.toDouble()",
                             "text.toLongLong(&ok)",
                             "snprintf(b, 9, \"%g\", v);",
                             "std::format(\"{}\", v)",
                             "std::ostringstream out;",
                             "(std::stringstream() << v)",
                             "std::istringstream(text) >> v",
                             "label.setNum(v);",
                             "QLocale::c().toString(v); QLocale c;",
                             "NumberText(v)",
                             "TrimmedNumberText(v)",
                             "ParseNumber(text)",
                             "std::from_chars(a, b, v)",
                             "atof(text)"}) {
        EXPECT_FALSE(NumberBreaches({"desktop/a.cpp", line}).empty()) << line;
        EXPECT_THAT(NumberBreaches({"shell/a.cpp", line}), IsEmpty());
    }
    for (const char* line : {"// to_string(v)", "QStringLiteral(\"a\") + QString::fromStdString(t)",
                             "painter.information(v)", "to_string_table_"}) {
        EXPECT_THAT(NumberBreaches({"desktop/a.cpp", line}), IsEmpty());
    }
    // An exception holds for one way in one file.
    const std::string line = "std::to_string(v) + std::stod(t)";
    EXPECT_EQ(NumberBreaches({"painter/chart_file.cpp", line}).size(), 1U);
    EXPECT_EQ(UnusedNumberExceptions({}).size(), 3U);
}

}  // namespace
}  // namespace zandrell
