#include "ui/platform/question_box.h"

#include <QMessageBox>

namespace quillon::ui {

bool AskYesNo(QWidget* owner, const QString& text, const QString& title)
{
    QMessageBox box(owner);
    box.setObjectName(QStringLiteral("QuestionBox"));
    box.setIcon(QMessageBox::Question);
    box.setWindowTitle(title);
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    box.setDefaultButton(QMessageBox::No);
    box.setEscapeButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

} // namespace quillon::ui
