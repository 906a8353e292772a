#include "ui/platform/message_notifier.h"

#include <QApplication>
#include <QMessageBox>

namespace quillon::ui {

namespace {

QString FromUtf8(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace

MessageNotifier::MessageNotifier(QWidget* owner)
    : m_owner(owner)
{
}

void MessageNotifier::Inform(std::string_view text, std::string_view title)
{
    // A dialog that is open must not come to stand in front of its message.
    QWidget* dialog = QApplication::activeModalWidget();
    QMessageBox box(dialog != nullptr ? dialog : m_owner);
    box.setObjectName(QStringLiteral("MessageBox"));
    box.setIcon(QMessageBox::Information);
    box.setWindowTitle(title.empty() ? QStringLiteral("Quillon") : FromUtf8(title));
    box.setTextFormat(Qt::PlainText);
    box.setText(FromUtf8(text));
    box.setStandardButtons(QMessageBox::Ok);
    box.exec();
}

} // namespace quillon::ui
