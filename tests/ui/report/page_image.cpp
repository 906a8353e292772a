#include "tests/ui/report/page_image.h"

#include <QProcess>

#include <stdexcept>

namespace quillon::test {

namespace {

constexpr int kTwipsPerPixel = 10;

/// Paler than this is the paper.
constexpr int kInk = 200;

} // namespace

PageImage::PageImage(const QByteArray& document)
{
    QProcess process;
    process.start(QStringLiteral("pdftoppm"), {QStringLiteral("-r"), QStringLiteral("144"), QStringLiteral("-")});
    process.write(document);
    process.closeWriteChannel();
    if (!process.waitForFinished() || !m_image.loadFromData(process.readAllStandardOutput(), "PPM")) {
        throw std::runtime_error("no picture of the page: " + process.readAllStandardError().toStdString());
    }
}

QRectF PageImage::InkIn(const QRectF& part) const
{
    const QRect pixels =
        QRectF(part.topLeft() / kTwipsPerPixel, part.size() / kTwipsPerPixel).toAlignedRect() & m_image.rect();
    QRect ink;
    for (int y = pixels.top(); y <= pixels.bottom(); ++y) {
        for (int x = pixels.left(); x <= pixels.right(); ++x) {
            if (qGray(m_image.pixel(x, y)) < kInk) {
                ink |= QRect(x, y, 1, 1);
            }
        }
    }
    return {QPointF(ink.topLeft()) * kTwipsPerPixel, QSizeF(ink.size()) * kTwipsPerPixel};
}

QSizeF PageImage::Size() const
{
    return QSizeF(m_image.size()) * kTwipsPerPixel;
}

bool PageImage::HasBlack() const
{
    for (int y = 0; y < m_image.height(); ++y) {
        for (int x = 0; x < m_image.width(); ++x) {
            if (m_image.pixel(x, y) == qRgb(0, 0, 0)) {
                return true;
            }
        }
    }
    return false;
}

} // namespace quillon::test
