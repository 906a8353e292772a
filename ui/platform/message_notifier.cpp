#include "ui/platform/message_notifier.h"

#include <QApplication>
#include <QDialog>
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

// A dialog that is open must not come to stand in front of its message, also one that stands beside the main window.
QWidget* MessageNotifier::Owner() const
{
    if (QWidget* modal = QApplication::activeModalWidget(); modal != nullptr) {
        return modal;
    }
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeWindow());
    return dialog != nullptr ? dialog : m_owner;
}

void MessageNotifier::Inform(std::string_view text, std::string_view title)
{
    QMessageBox box(Owner());
    box.setObjectName(QStringLiteral("MessageBox"));
    box.setIcon(QMessageBox::Information);
    box.setWindowTitle(title.empty() ? QStringLiteral("Quillon") : FromUtf8(title));
    box.setTextFormat(Qt::PlainText);
    box.setText(FromUtf8(text));
    box.setStandardButtons(QMessageBox::Ok);
    box.exec();
}

} // namespace quillon::ui
