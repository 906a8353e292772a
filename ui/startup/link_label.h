#pragma once

#include <QLabel>

namespace quillon::ui {

/// Plain text that does something: underlined and in the palette's link colour, reached by the Tab key, clicked by the
/// mouse, Enter or the space bar. Screen readers are told that it is a link.
class LinkLabel : public QLabel
{
    Q_OBJECT

public:
    explicit LinkLabel(QWidget* parent);

signals:
    void Clicked();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};

} // namespace quillon::ui
