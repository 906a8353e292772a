#pragma once

#include <QList>
#include <QString>

class QGridLayout;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QWidget;

namespace quillon::ui {

/// A box that grows, and its spin controls right of it.
[[nodiscard]] QHBoxLayout* FieldRow(const QList<QWidget*>& widgets);

/// Quiet label of an input, its buddy: the way to the input for screen readers.
[[nodiscard]] QLabel* FieldLabel(const QString& text, QWidget* buddy, QWidget* parent);

/// A frame with a card behind it.
[[nodiscard]] QGridLayout* InCard(QWidget* frame);

/// Makes buttons as wide as the widest of their captions asks for.
void FitButtons(const QList<QPushButton*>& buttons);

/// Buttons at the bottom of a dialog, all as wide as the widest caption asks for, none pressed by Enter elsewhere.
[[nodiscard]] QHBoxLayout* ButtonRow(const QList<QPushButton*>& left, const QList<QPushButton*>& right);

} // namespace quillon::ui
