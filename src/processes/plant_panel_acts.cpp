#include "base/number_text.h"
#include "processes/plant_panel.h"

namespace zandrell {

void PlantPanel::BindActs(ActTable& acts) {
    const auto always = [] { return true; };
    const auto in_force = [this] { return IsInForce(); };
    const auto split_flow = [this] {
        VolumenTeilen();
        return true;
    };
    const auto take_shares = [this] { return TakeFlowFromShares(); };
    // The bars of the humidities follow with the calculation, which may correct their fields first.
    const auto moves = [](const TextField& field, ScrollBar& bar) {
        return [&field, &bar] {
            bar.ShowTenths(ParsedNumber(field.text));
            return true;
        };
    };
    const Input inputs[] = {
        {&vhAnlage, nullptr, always},
        {&aussenAnt, nullptr, split_flow},
        {&vhinnen, nullptr, take_shares},
        {&vhaussen, nullptr, take_shares},
        {&tabLuft, &tabScroll, moves(tabLuft, tabScroll)},
        {&PHIAbluft, &PHIAbscroll, always},
        {&Taus, &taScroll, moves(Taus, taScroll)},
        {&PhiAussen, &Phiaussenscroll, always},
        {&TZuluft, &tzuScroll, moves(TZuluft, tzuScroll)},
        {&PHIZuluft, &PhiZuscroll, always},
        {&tKA, nullptr, always},
        {&phiKanal, nullptr, always},
        {&dtVent1, nullptr, in_force},
        {&dtVent2, nullptr, in_force},
    };
    for (const Input& input : inputs) Bind(acts, input);
    BindOption(acts, Option3D3, Option3D4);
    BindOption(acts, Option3D4, Option3D3);
}

void PlantPanel::Bind(ActTable& acts, const Input& input) {
    acts.Add(input.field->name, ActKind::Return, [this, input] {
        if (input.before()) AnlageBerechnen();
        taken_.Take();
    });
    if (input.bar == nullptr) return;
    input.bar->on_change = [this, field = input.field, bar = input.bar] {
        if (!IsInForce()) return;
        field->text = NumberText(bar->Position() / kBarUnitsPerField);
        AnlageBerechnen();
    };
}

void PlantPanel::BindOption(ActTable& acts, OptionButton& chosen, OptionButton& other) {
    acts.Add(chosen.name, ActKind::Choose, [this, &chosen, &other] {
        Choose(chosen, other);
        if (IsInForce()) AnlageBerechnen();
    });
}

}  // namespace zandrell
