#pragma once

#include "tests/looks/text_recorder.h"

#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>

#include <functional>
#include <memory>

namespace quillon::test {

using TakeText = std::function<void(DrawnText)>;

/// Draws into a picture, but for texts, which it hands over.
class RecordingEngine : public QPaintEngine
{
public:
    RecordingEngine(QImage& picture, TakeText take);

    bool begin(QPaintDevice* device) override;
    bool end() override;
    void updateState(const QPaintEngineState& now) override;
    void drawPixmap(const QRectF& place, const QPixmap& pixmap, const QRectF& part) override;
    void drawTiledPixmap(const QRectF& place, const QPixmap& pixmap, const QPointF& start) override;
    void drawImage(const QRectF& place, const QImage& image, const QRectF& part,
                   Qt::ImageConversionFlags flags) override;
    void drawPath(const QPainterPath& path) override;
    void drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) override;
    void drawTextItem(const QPointF& start, const QTextItem& item) override;

    using QPaintEngine::drawPolygon;

    [[nodiscard]] Type type() const override { return User; }

private:
    /// Keeps to the part of the picture that the widget at work may draw on.
    void Clip();
    void UpdateClip(const QPaintEngineState& now);

    QImage& m_picture;
    TakeText m_take;
    QPainter m_painter;
    QPainterPath m_ownClip; ///< by the painter of the widget, in pixels of the picture
    bool m_hasOwnClip = false;
};

/// What a widget can be drawn on to be recorded.
class RecordingDevice : public QPaintDevice
{
public:
    RecordingDevice(QImage& picture, double scale, TakeText take);

    [[nodiscard]] QPaintEngine* paintEngine() const override { return m_engine.get(); }

protected:
    [[nodiscard]] int metric(PaintDeviceMetric metric) const override;

private:
    QImage m_measure; ///< a picture of the same size and scale, asked for what a screen would be asked for
    std::unique_ptr<RecordingEngine> m_engine;
};

} // namespace quillon::test
