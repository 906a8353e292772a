#pragma once

#include <QProxyStyle>

class QApplication;

namespace quillon::ui {

/// The built-in style with outlines that are seen in dark palettes too. Any other style is left as it is.
class QuillonStyle : public QProxyStyle
{
    Q_OBJECT

public:
    /// Puts the style over the application's when that is the built-in one.
    static void Install(QApplication& application);
};

} // namespace quillon::ui
