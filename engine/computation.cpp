#include "engine/computation.h"

#include "engine/arithmetic_error.h"
#include "engine/number_writer.h"

#include <span>

namespace quillon::engine {

Computation::Computation(const AntennaSystems& systems, int number)
    : system(ToSystemId(number))
    , data(systems.Data[system])
    , results(systems.Results[system])
    , isComputed(systems.State[system].Flag(kComputeFlag) != kFalse)
{
}

void Computation::ShowResult(ResultLabel label, float number, const Mask& mask)
{
    Shown& shown = Add(label, Form::Masked);
    shown.numbers[0] = Checked(number);
    shown.mask = &mask;
}

void Computation::ShowSystemGain()
{
    const float gain = Checked(results.SystemGain);
    Add(ResultLabel::SystemGain, Form::Number).numbers[0] = gain;
    Add(ResultLabel::SystemGain, Form::SystemGainFormula).numbers = {
        Checked(results.AntennaGainDBd), Checked(results.CoaxDBLoss), Checked(results.ConnectorLoss), gain};
}

void Computation::ShowFormula(ResultLabel label, std::string_view formula)
{
    Add(label, Form::Words).words = formula;
}

void Computation::ShowFormula(PowerKind kind, const PowerStep& step)
{
    Shown& shown = Add(FormulaLabel(kind), Form::PowerFormula);
    shown.kind = kind;
    shown.numbers = {step.power, step.coefficient, step.result};
}

void Computation::Commit(AntennaSystems& systems, ResultsDisplay& display, NumberWriter& text) const
{
    systems.Results[system] = results;
    for (const Shown& shown : std::span(m_shown).first(m_count)) {
        text.Clear();
        shown.Write(text);
        if (shown.form == Form::Number || shown.form == Form::Masked) {
            display.ShowResult(shown.label, system, text.Text());
        } else {
            display.ShowFormula(shown.label, system, text.Text());
        }
    }
    if (m_comparesSystems) {
        display.CompareSystems();
    }
}

Computation::Shown& Computation::Add(ResultLabel label, Form form)
{
    Shown& shown = m_shown.at(m_count);
    ++m_count;
    shown.label = label;
    shown.form = form;
    return shown;
}

void Computation::Shown::Write(NumberWriter& text) const
{
    switch (form) {
    case Form::Number:
        text << numbers[0];
        return;
    case Form::Masked:
        text.Masked(numbers[0], *mask);
        return;
    case Form::Words:
        text << words;
        return;
    case Form::SystemGainFormula:
        text << numbers[0] << " + ((" << numbers[1] << " + " << numbers[2] << ") * -1) = " << numbers[3];
        return;
    case Form::PowerFormula:
        WritePowerFormula(text, kind, {numbers[0], numbers[1], numbers[2]});
    }
}

} // namespace quillon::engine
