#include "tests/looks/recording_engine.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QScreen>
#include <QtMath>

#include <utility>

namespace quillon::test {

RecordingEngine::RecordingEngine(QImage& picture, TakeText take)
    : QPaintEngine(AllFeatures)
    , m_picture(picture)
    , m_take(std::move(take))
{
}

bool RecordingEngine::begin(QPaintDevice* /*device*/)
{
    return m_painter.begin(&m_picture);
}

bool RecordingEngine::end()
{
    return m_painter.end();
}

void RecordingEngine::updateState(const QPaintEngineState& now)
{
    m_painter.setPen(now.pen());
    m_painter.setBrush(now.brush());
    m_painter.setBrushOrigin(now.brushOrigin());
    m_painter.setBackground(now.backgroundBrush());
    m_painter.setBackgroundMode(now.backgroundMode());
    m_painter.setOpacity(now.opacity());
    m_painter.setCompositionMode(now.compositionMode());
    m_painter.setRenderHints(m_painter.renderHints(), false);
    m_painter.setRenderHints(now.renderHints(), true);
    UpdateClip(now);
    m_painter.setTransform(now.transform());
}

void RecordingEngine::UpdateClip(const QPaintEngineState& now)
{
    const DirtyFlags changed = now.state();
    if (changed.testFlag(DirtyClipEnabled)) {
        m_hasOwnClip = now.isClipEnabled() && !m_ownClip.isEmpty();
    }
    if (!changed.testFlag(DirtyClipPath) && !changed.testFlag(DirtyClipRegion)) {
        return;
    }
    QPainterPath path;
    if (changed.testFlag(DirtyClipRegion)) {
        path.addRegion(now.clipRegion());
    } else {
        path = now.clipPath();
    }
    path = now.transform().map(path);
    const Qt::ClipOperation operation = now.clipOperation();
    m_ownClip = operation == Qt::IntersectClip && m_hasOwnClip ? m_ownClip.intersected(path) : path;
    m_hasOwnClip = operation != Qt::NoClip;
}

void RecordingEngine::Clip()
{
    const QTransform kept = m_painter.transform();
    m_painter.resetTransform();
    const QRegion clip = systemClip();
    m_painter.setClipRegion(clip.isEmpty() ? QRegion(m_picture.rect()) : clip);
    if (m_hasOwnClip) {
        m_painter.setClipPath(m_ownClip, Qt::IntersectClip);
    }
    m_painter.setTransform(kept);
}

void RecordingEngine::drawPixmap(const QRectF& place, const QPixmap& pixmap, const QRectF& part)
{
    Clip();
    m_painter.drawPixmap(place, pixmap, part);
}

void RecordingEngine::drawTiledPixmap(const QRectF& place, const QPixmap& pixmap, const QPointF& start)
{
    Clip();
    m_painter.drawTiledPixmap(place, pixmap, start);
}

void RecordingEngine::drawImage(const QRectF& place, const QImage& image, const QRectF& part,
                                Qt::ImageConversionFlags flags)
{
    Clip();
    m_painter.drawImage(place, image, part, flags);
}

void RecordingEngine::drawPath(const QPainterPath& path)
{
    Clip();
    m_painter.drawPath(path);
}

void RecordingEngine::drawPolygon(const QPointF* points, int count, PolygonDrawMode mode)
{
    Clip();
    if (mode == PolylineMode) {
        m_painter.drawPolyline(points, count);
    } else {
        m_painter.drawPolygon(points, count, mode == WindingMode ? Qt::WindingFill : Qt::OddEvenFill);
    }
}

void RecordingEngine::drawTextItem(const QPointF& start, const QTextItem& item)
{
    const QRectF ink = QFontMetricsF(item.font()).tightBoundingRect(item.text()).translated(start);
    if (item.text().trimmed().isEmpty() || ink.isEmpty()) {
        return;
    }
    Clip();
    const QTransform toPicture = m_painter.transform();
    DrawnText text;
    text.text = item.text();
    text.start = toPicture.map(start);
    text.ink = toPicture.mapRect(ink);
    text.shown = toPicture.map(m_painter.clipRegion()) & text.ink.toAlignedRect() & m_picture.rect();
    text.color = m_painter.pen().color();
    text.color.setAlphaF(static_cast<float>(text.color.alphaF() * m_painter.opacity()));
    text.behind = m_picture.copy(text.shown.boundingRect());
    m_take(std::move(text));
}

RecordingDevice::RecordingDevice(QImage& picture, double scale, TakeText take)
    : m_measure(picture.size(), QImage::Format_Mono)
    , m_engine(std::make_unique<RecordingEngine>(picture, std::move(take)))
{
    m_measure.setDevicePixelRatio(scale);
}

int RecordingDevice::metric(PaintDeviceMetric metric) const
{
    const QScreen& screen = *QGuiApplication::primaryScreen();
    switch (metric) {
    case PdmDpiX:
    case PdmPhysicalDpiX:
        return qRound(screen.logicalDotsPerInchX());
    case PdmDpiY:
    case PdmPhysicalDpiY:
        return qRound(screen.logicalDotsPerInchY());
    case PdmWidth:
        return m_measure.width();
    case PdmHeight:
        return m_measure.height();
    case PdmDevicePixelRatio:
        return qFloor(m_measure.devicePixelRatio());
    case PdmDevicePixelRatioScaled:
        return qRound(m_measure.devicePixelRatio() * devicePixelRatioFScale());
    default:
        return QPaintDevice::metric(metric);
    }
}

} // namespace quillon::test
