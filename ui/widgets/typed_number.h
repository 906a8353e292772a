#pragma once

#include <QLocale>
#include <QString>

#include <cstdint>
#include <optional>

namespace quillon::ui {

/// What a person's text stands for: a value, or the reason why it stands for none, in words for the person.
template <class T>
struct Typed
{
    std::optional<T> value;
    QString problem;
};

/// Reads a typed number: the locale's decimal separator or a point, no grouping. Finite numbers only.
[[nodiscard]] Typed<double> ReadDouble(const QString& text, const QLocale& locale);

/// As ReadDouble, for numbers of 32 bits.
[[nodiscard]] Typed<float> ReadNumber(const QString& text, const QLocale& locale);

/// Reads a typed whole number: as ReadNumber, rounded with halves to even, within 16 bits.
[[nodiscard]] Typed<std::int16_t> ReadWholeNumber(const QString& text, const QLocale& locale);

/// The words for a number that cannot be computed with.
[[nodiscard]] QString TooLarge(const QString& text);

} // namespace quillon::ui
