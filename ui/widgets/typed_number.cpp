#include "ui/widgets/typed_number.h"

#include "engine/arithmetic_error.h"
#include "engine/number_text.h"

#include <QCoreApplication>

#include <array>
#include <cmath>
#include <limits>

namespace quillon::ui {

namespace {

QString Words(const char* sentence, const QString& text)
{
    return QCoreApplication::translate("TypedNumber", sentence).arg(text);
}

/// The text as a double; infinite when it is a number beyond doubles, nothing when it is no number.
std::optional<double> ParseDouble(const QString& text, const QLocale& locale)
{
    QLocale reader = locale;
    reader.setNumberOptions(QLocale::RejectGroupSeparator);
    bool ok = false;
    const double value = reader.toDouble(text.trimmed(), &ok);
    if (ok && std::isfinite(value)) {
        return value;
    }
    const bool overflowed = !ok && std::isinf(value);
    return overflowed ? std::optional(value) : std::nullopt;
}

/// Reads with the locale's separator first, so that "1.500" is never taken for a grouped number.
std::optional<double> ParseTyped(const QString& text, const QLocale& locale)
{
    for (const QLocale& reader : std::array{locale, QLocale::c()}) {
        if (const std::optional<double> value = ParseDouble(text, reader)) {
            return value;
        }
    }
    return std::nullopt;
}

} // namespace

QString TooLarge(const QString& text)
{
    return Words(QT_TRANSLATE_NOOP("TypedNumber", "“%1” is too large"), text);
}

Typed<double> ReadDouble(const QString& text, const QLocale& locale)
{
    const std::optional<double> value = ParseTyped(text, locale);
    if (!value) {
        return {std::nullopt, Words(QT_TRANSLATE_NOOP("TypedNumber", "“%1” is not a number"), text)};
    }
    if (std::isinf(*value)) {
        return {std::nullopt, TooLarge(text)};
    }
    return {value, {}};
}

Typed<float> ReadNumber(const QString& text, const QLocale& locale)
{
    const Typed<double> number = ReadDouble(text, locale);
    if (!number.value) {
        return {std::nullopt, number.problem};
    }
    if (std::abs(*number.value) > static_cast<double>(std::numeric_limits<float>::max())) {
        return {std::nullopt, TooLarge(text)};
    }
    return {static_cast<float>(*number.value), {}};
}

Typed<std::int16_t> ReadWholeNumber(const QString& text, const QLocale& locale)
{
    const Typed<double> number = ReadDouble(text, locale);
    if (!number.value) {
        return {std::nullopt, number.problem};
    }
    try {
        return {engine::ToInteger(*number.value), {}};
    } catch (const engine::ArithmeticError&) {
        return {std::nullopt, TooLarge(text)};
    }
}

} // namespace quillon::ui
