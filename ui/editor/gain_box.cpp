#include "ui/editor/gain_box.h"

#include "engine/arithmetic_error.h"
#include "engine/key_checks.h"
#include "engine/mask.h"
#include "engine/number_text.h"
#include "store/antenna_files.h"
#include "ui/widgets/list_keys.h"

#include <QInputMethodEvent>
#include <QKeyEvent>

namespace quillon::ui {

namespace {

constexpr int kDigits = 6;
constexpr std::string_view kGainMask = "#0.0";

} // namespace

GainBox::GainBox(QWidget* parent)
    : NumberBox(kDigits, parent)
{
    connect(this, &QLineEdit::textChanged, this, &GainBox::txtGainFigure_Change);
}

void GainBox::ShowTenths(std::string_view gain)
{
    const auto decibels = static_cast<float>(engine::NumberFromText(gain) * 0.1);
    const std::string separator = locale().decimalPoint().toStdString();
    setText(QString::fromStdString(engine::FormatWithMask(decibels, kGainMask, separator)));
}

Typed<std::int16_t> GainBox::Tenths() const
{
    if (text().isEmpty()) {
        return {0, {}};
    }
    const Typed<double> decibels = ReadDouble(text(), locale());
    if (!decibels.value) {
        return {std::nullopt, decibels.problem};
    }
    try {
        return {store::ToGainTenths(*decibels.value), {}};
    } catch (const engine::ArithmeticError&) {
        return {std::nullopt, TooLarge(text())};
    }
}

QString GainBox::Filtered(const QString& text) const
{
    QString filtered;
    for (const QChar character : text) {
        // The locale's separator counts as the point: the box shows its gain with it.
        if (engine::FilterGainKey(character.unicode()) != 0 || locale().decimalPoint() == character) {
            filtered.append(character);
        }
    }
    return filtered;
}

void GainBox::keyPressEvent(QKeyEvent* event)
{
    if (!TypesCharacter(*event)) {
        NumberBox::keyPressEvent(event);
        return;
    }
    event->accept();
    if (const QString text = Filtered(event->text()); !text.isEmpty()) {
        QKeyEvent filtered(event->type(), event->key(), event->modifiers(), text, event->isAutoRepeat(),
                           static_cast<quint16>(event->count()));
        NumberBox::keyPressEvent(&filtered);
    }
}

void GainBox::inputMethodEvent(QInputMethodEvent* event)
{
    QInputMethodEvent filtered(event->preeditString(), event->attributes());
    filtered.setCommitString(Filtered(event->commitString()), event->replacementStart(), event->replacementLength());
    NumberBox::inputMethodEvent(&filtered);
    event->setAccepted(filtered.isAccepted());
}

void GainBox::txtGainFigure_Change()
{
    // As given, a minus sign that is not in front takes away what stands before it, digits too: character by character
    // until it is in front, which is done in one step here.
    if (const qsizetype minus = text().lastIndexOf(u'-'); minus > 0) {
        setText(text().mid(minus));
        return;
    }
    if (const Typed<std::int16_t> tenths = Tenths(); tenths.value) {
        ClearMark();
    } else {
        Mark(tenths.problem);
    }
}

} // namespace quillon::ui
