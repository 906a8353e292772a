#include "tests/looks/text_recorder.h"

#include "tests/looks/recording_engine.h"

#include <QApplication>
#include <QEvent>

#include <utility>

namespace quillon::test {

namespace {

/// Knows whose turn to draw it is: each widget is told so before it draws. What a widget draws around its own texts,
/// as the line below an access key, does not cover them; what others draw later does.
class DrawingWatch : public QObject
{
public:
    explicit DrawingWatch(Recording& recording)
        : m_recording(recording)
    {
        QCoreApplication::instance()->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && watched->isWidgetType()) {
            KeepWhatIsDrawn();
            m_widget = static_cast<QWidget*>(watched);
        }
        return false;
    }

    void Take(DrawnText text)
    {
        text.widget = m_widget;
        m_recording.texts.push_back(std::move(text));
    }

    void FindCovered()
    {
        KeepWhatIsDrawn();
        for (std::size_t index = 0; index < m_recording.texts.size(); ++index) {
            m_recording.texts[index].covered = Around(index) != m_drawn[index];
        }
    }

private:
    [[nodiscard]] QImage Around(std::size_t index) const
    {
        const QRect place = m_recording.texts[index].shown.boundingRect();
        return place.isEmpty() ? QImage() : m_recording.picture.copy(place);
    }

    void KeepWhatIsDrawn()
    {
        while (m_drawn.size() < m_recording.texts.size()) {
            m_drawn.push_back(Around(m_drawn.size()));
        }
    }

    Recording& m_recording;
    QPointer<QWidget> m_widget;
    std::vector<QImage> m_drawn; ///< for each text, its place when its widget had drawn itself
};

} // namespace

Recording Record(QWidget& root)
{
    const double scale = root.devicePixelRatioF();
    Recording recording{{}, QImage((QSizeF(root.size()) * scale).toSize(), QImage::Format_ARGB32_Premultiplied), scale};
    recording.picture.fill(root.palette().color(QPalette::Window));
    DrawingWatch watch(recording);
    {
        RecordingDevice device(recording.picture, scale, [&watch](DrawnText text) { watch.Take(std::move(text)); });
        root.render(&device);
    }
    watch.FindCovered();
    return recording;
}

} // namespace quillon::test
