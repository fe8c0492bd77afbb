#include "selection/frequency_panel.h"

#include "base/number_text.h"
#include "base/unit_texts.h"

namespace zandrell {

void FrequencyPanel::Activate() {
    SelectionInputs& inputs = context_.selection.inputs;
    if (inputs.BetriebsFreq == 0) {
        inputs.BetriebsFreq = context_.shared.MainsFrequency;
        if (inputs.InverterNetzFreq > 0) inputs.BetriebsFreq = inputs.InverterNetzFreq;
    }
    controls_.HScroll1.SetPosition(RoundToInteger(inputs.BetriebsFreq));
    controls_.KPFreq.text = NumberText(inputs.BetriebsFreq);
    controls_.KPFreq.tool_tip.clear();
}

void FrequencyPanel::ReadLabels() {
    SelectionInputs& inputs = context_.selection.inputs;
    inputs.Label26 = ParsedNumber(controls_.Label26.text);
    inputs.Label27 = ParsedNumber(controls_.Label27.text);
}

void FrequencyPanel::Show(const InverterFigures& figures) {
    if (figures.Label25) controls_.Label25.text = NumberText(*figures.Label25);
    if (figures.Label28) controls_.Label28.text = NumberText(*figures.Label28);
    controls_.Label25.background = figures.label25_back;
    controls_.Label27.background = figures.label27_back;
}

void FrequencyPanel::inverter_rech() {
    SelectionShared& selection = context_.selection;
    const Captions& words = context_.captions;
    ReadLabels();
    const InverterFigures figures =
        zandrell::inverter_rech(controls_.HScroll1.Position(), selection.inputs);
    const std::string frequency = NumberText(selection.inputs.BetriebsFreq);
    controls_.KPFreq.text = frequency;
    controls_.KPFreq.tool_tip.clear();
    const std::string behind = " (" + frequency + "Hz)";
    controls_.Label29.text = words[Caption::VolumeFlow] + " " + words[Caption::Compressor] +
                             behind + "  /[" + std::string(UnitM3h) + "] :";
    Show(figures);
    if (figures.label37_back) controls_.Label37_l.background = figures.label37_back;
    if (!figures.Label1) return;
    const std::string capacity = NumberText(*figures.Label1);
    controls_.Label37_l.text = selection.FreqTitel + " " + words[Caption::RefrigeratingCapacity] +
                               behind + " : " + capacity + "kW";
    controls_.Label1.text = capacity;
}

void FrequencyPanel::TakeTyped() {
    SelectionShared& selection = context_.selection;
    const std::string typed = controls_.KPFreq.text;
    const double frequency = ParsedNumber(typed);
    if (!(frequency > 0 && frequency < 100)) {
        controls_.KPFreq.tool_tip = context_.captions[Caption::FrequencyRefused];
        return;
    }
    // The slider runs its own calculation first.
    controls_.HScroll1.SetPosition(RoundToInteger(frequency));
    ReadLabels();
    if (const auto figures =
            TypedFrequency(frequency, selection.inputs, context_.shared.MainsFrequency)) {
        Show(*figures);
    }
    controls_.KPFreq.text = typed;
    controls_.KPFreq.tool_tip.clear();
}

}  // namespace zandrell
