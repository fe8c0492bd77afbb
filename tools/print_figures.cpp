// Prints the figures of the air-handling plant that a script of acts leaves, as a table for people.
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

#include "base/text_encoding.h"
#include "shell/form_script.h"

namespace {

using zandrell::MainForm;

struct Row {
    const char* name;
    std::string value;
};

std::string OneLine(const std::string& text) {
    return zandrell::Trimmed(text.substr(0, text.find('\r')));
}

std::vector<Row> InputRows(const MainForm& form) {
    const auto& p = form.processes.plant;
    return {{"flow, m3/h", p.vhAnlage.text},
            {"inner and outer share, m3/h", p.vhinnen.text + " /" + p.vhaussen.text},
            {"exhaust air, degC and %", p.tabLuft.text + " / " + p.PHIAbluft.text},
            {"outside air, degC and %", p.Taus.text + " / " + p.PhiAussen.text},
            {"behind the cooler, degC and %", p.tKA.text + " / " + p.phiKanal.text},
            {"supply air, degC and %", p.TZuluft.text + " / " + p.PHIZuluft.text},
            {"rise over supply and return fan, K", p.dtVent1.text + " / " + p.dtVent2.text},
            {"humidifier", p.Option3D3.on ? "steam" : "water"}};
}

std::vector<Row> ResultRows(const MainForm& form) {
    const auto& p = form.processes.plant;
    return {{"room, total", p.RaumLeist.text},
            {"room, sensible", p.RaumSensLeist.text},
            {"room, latent", p.RaumLatLeist.text},
            {"room, moisture", p.RaumWasserLeist.text},
            {"cooler", p.Kuehl.text},
            {"heater", p.Heiz2.text},
            {"humidifier", p.Bef.text.empty() ? "not in play" : p.Bef.text}};
}

void Print(const std::vector<Row>& rows) {
    constexpr std::size_t kValueColumn = 38;
    for (const auto& row : rows) {
        std::string line = "  " + std::string(row.name);
        if (line.size() < kValueColumn) line.resize(kValueColumn, ' ');
        std::cout << line << OneLine(row.value) << '\n';
    }
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 4) {
        std::cerr << "print_figures DATA_FOLDER SCRIPT TITLE\n";
        return EXIT_FAILURE;
    }
    std::ifstream script(argv[2]);
    if (!script) {
        std::cerr << "print_figures: cannot read " << argv[2] << '\n';
        return EXIT_FAILURE;
    }
    zandrell::ScriptedUser user(script, std::cout);
    zandrell::DataFiles files(argv[1]);
    MainForm form(user, files, zandrell::NamedFolder(argv[1]));
    std::string error;
    if (!user.Run(form, error)) {
        std::cerr << "print_figures: " << argv[2] << ": " << error << '\n';
        return EXIT_FAILURE;
    }
    std::cout << argv[3] << '\n';
    Print(InputRows(form));
    Print(ResultRows(form));
    return EXIT_SUCCESS;
}
