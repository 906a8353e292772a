#pragma once

#include <QColor>
#include <QRectF>

class QPainter;
class QWidget;

namespace quillon::ui {

/// Outline of two pixels inside a control's edge: what stands in the control is not taken over.
void PaintMarkOutline(QPainter& painter, const QRectF& control, const QColor& color);

/// Warning triangle with its exclamation mark, filling the square.
void PaintWarningTriangle(QPainter& painter, const QRectF& square, const QColor& color);

/// Puts the same words into the tool tip and the accessible description of a control, as plain text.
void Explain(QWidget& control, const QString& words);

} // namespace quillon::ui
