#include "tests/ui/systems/systems_fixture.h"

#include "tests/support/find_widget.h"
#include "ui/widgets/object_names.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

namespace quillon::ui {

std::string TextOf(const QDialog& dialog, const char* name)
{
    const QWidget& widget = test::Find<QWidget>(dialog, QString::fromUtf8(name));
    return widget.property("text").toString().toStdString();
}

std::string LinesOf(const QDialog& dialog, const char* name)
{
    QStringList lines;
    for (int place = 0; place < 4; ++place) {
        lines.append(test::Find<QLabel>(dialog, IndexedName(QString::fromUtf8(name), place)).text());
    }
    return lines.join(u'|').toStdString();
}

void ClickOn(const QDialog& dialog, const char* name)
{
    QTest::mouseClick(&test::Find<QAbstractButton>(dialog, QString::fromUtf8(name)), Qt::LeftButton);
}

void WhenModal(const std::function<void(QWidget&)>& step)
{
    QTimer::singleShot(0, [step] {
        if (QWidget* modal = QApplication::activeModalWidget()) {
            step(*modal);
        }
    });
}

} // namespace quillon::ui
