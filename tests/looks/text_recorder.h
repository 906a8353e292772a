#pragma once

#include <QColor>
#include <QImage>
#include <QPointer>
#include <QRectF>
#include <QRegion>
#include <QString>
#include <QWidget>

#include <vector>

namespace quillon::test {

/// A piece of text as it was drawn: at most one line in one font. Lengths are those of the picture, in its pixels.
struct DrawnText
{
    QString text;
    QPointer<QWidget> widget; ///< that drew it
    QPointF start;            ///< of its base line
    QRectF ink;               ///< what its letters cover
    QRegion shown;            ///< what of the ink was not cut off
    QColor color;             ///< over what is behind it
    QImage behind;            ///< the picture without the text, where the ink is
    bool covered = false;     ///< something was drawn over it later
};

/// What a widget and its children show.
struct Recording
{
    std::vector<DrawnText> texts;
    QImage picture; ///< without the texts
    double scale;   ///< pixels of the picture for one of the widget's
};

/// Has a widget and its children draw themselves, and tells every text from everything else, whatever draws it: a
/// label, the style, a table, a document.
[[nodiscard]] Recording Record(QWidget& root);

} // namespace quillon::test
