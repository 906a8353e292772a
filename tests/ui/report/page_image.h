#pragma once

#include <QByteArray>
#include <QImage>
#include <QRectF>

namespace quillon::test {

/// A PDF document's page as another program draws it: 144 pixels an inch, one for ten twips.
class PageImage
{
public:
    /// @throws std::runtime_error when the document cannot be drawn
    explicit PageImage(const QByteArray& document);

    /// What is not white within a part of the page. All lengths are in twips.
    /// @return an empty rectangle when all is white
    [[nodiscard]] QRectF InkIn(const QRectF& part) const;

    [[nodiscard]] QRectF Ink() const { return InkIn({{0, 0}, Size()}); }

    [[nodiscard]] QSizeF Size() const;

    /// @return whether there are no colours but greys
    [[nodiscard]] bool IsGray() const { return m_image.allGray(); }

    [[nodiscard]] bool HasBlack() const;

private:
    QImage m_image;
};

} // namespace quillon::test
