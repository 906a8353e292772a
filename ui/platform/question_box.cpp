#include "ui/platform/question_box.h"

#include <QMessageBox>

namespace quillon::ui {

namespace {

/// @param safest  the default answer, also given by Esc and by closing the box
QMessageBox::StandardButton Ask(QWidget* owner, const QString& text, const QString& title,
                                QMessageBox::StandardButtons answers, QMessageBox::StandardButton safest)
{
    QMessageBox box(owner);
    box.setObjectName(QStringLiteral("QuestionBox"));
    box.setIcon(QMessageBox::Question);
    box.setWindowTitle(title);
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    box.setStandardButtons(answers);
    box.setDefaultButton(safest);
    box.setEscapeButton(safest);
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

} // namespace

bool AskYesNo(QWidget* owner, const QString& text, const QString& title)
{
    return Ask(owner, text, title, QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
}

bool AskOkCancel(QWidget* owner, const QString& text, const QString& title)
{
    return Ask(owner, text, title, QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Cancel) == QMessageBox::Ok;
}

Answer AskYesNoCancel(QWidget* owner, const QString& text, const QString& title)
{
    switch (Ask(owner, text, title, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Cancel)) {
    case QMessageBox::Yes:
        return Answer::Yes;
    case QMessageBox::No:
        return Answer::No;
    default:
        return Answer::Cancel;
    }
}

} // namespace quillon::ui
