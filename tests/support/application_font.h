#pragma once

#include <QApplication>
#include <QFont>

namespace quillon::test {

/// Gives the application another font as the desktop does, and puts the old one back at the end of the scope.
class ApplicationFont
{
public:
    ApplicationFont() = default;

    ~ApplicationFont() { Set(m_before); }

    ApplicationFont(const ApplicationFont&) = delete;
    ApplicationFont& operator=(const ApplicationFont&) = delete;

    static void SetPointSize(double points)
    {
        QFont font = QApplication::font();
        font.setPointSizeF(points);
        Set(font);
    }

    static void SetPixelSize(int pixels)
    {
        QFont font = QApplication::font();
        font.setPixelSize(pixels);
        Set(font);
    }

private:
    static void Set(const QFont& font)
    {
        QApplication::setFont(font);
        // Widgets hear of it through the event loop.
        QApplication::processEvents();
    }

    QFont m_before = QApplication::font();
};

} // namespace quillon::test
