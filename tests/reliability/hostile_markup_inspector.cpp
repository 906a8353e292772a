#include "tests/reliability/hostile_markup_inspector.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QGroupBox>
#include <QLabel>
#include <QMessageBox>
#include <QPixmap>
#include <QTextDocumentFragment>
#include <QTextEdit>
#include <QWidget>

namespace quillon::reliability {

namespace {

/// The text as it is shown where an ampersand marks the key of a shortcut.
QString WithoutMnemonics(QString text)
{
    text.replace(QStringLiteral("&&"), QStringLiteral("\x01"));
    text.remove(u'&');
    return text.replace(u'\x01', u'&');
}

} // namespace

void HostileMarkupInspector::LookAt(QWidget& window)
{
    const QString kind =
        window.objectName().isEmpty() ? QString::fromLatin1(window.metaObject()->className()) : window.objectName();
    if (!m_windows.contains(kind)) {
        m_windows.append(kind);
    }
    window.grab();
    Judge(window);
    for (QWidget* child : window.findChildren<QWidget*>()) {
        Judge(*child);
        JudgeAccessible(*child);
    }
}

void HostileMarkupInspector::Judge(const QWidget& widget)
{
    JudgeLabel(widget);
    for (const QString& tip : {widget.toolTip(), widget.whatsThis(), widget.statusTip()}) {
        JudgeTip(widget, tip);
    }
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
        Compare(QStringLiteral("button"), WithoutMnemonics(button->text()).contains(m_name) ? m_name : QString(),
                button->text().contains(m_name) ? m_name : QString());
    }
    if (const auto* edit = qobject_cast<const QTextEdit*>(&widget);
        edit != nullptr && (edit->toPlainText().contains(m_name) || edit->toHtml().contains(m_name))) {
        Note(widget, QStringLiteral("stands in a box for rich text"), edit->toPlainText());
    }
}

void HostileMarkupInspector::JudgeLabel(const QWidget& widget)
{
    const auto* label = qobject_cast<const QLabel*>(&widget);
    if (label == nullptr || label->text().isEmpty()) {
        return;
    }
    ++m_texts;
    const bool isRich = label->textFormat() == Qt::RichText || label->textFormat() == Qt::MarkdownText ||
                        (label->textFormat() == Qt::AutoText && Qt::mightBeRichText(label->text()));
    if (isRich) {
        Note(widget, QStringLiteral("is a label in rich text"), label->text());
    }
    if (label->buddy() != nullptr && label->text().contains(m_name) &&
        !WithoutMnemonics(label->text()).contains(m_name)) {
        Note(widget, QStringLiteral("loses an ampersand"), label->text());
    }
}

void HostileMarkupInspector::JudgeTip(const QWidget& widget, const QString& tip)
{
    if (tip.isEmpty()) {
        return;
    }
    ++m_texts;
    if (!Qt::mightBeRichText(tip)) {
        return;
    }
    // Written as markup, it has to show what stands in the data.
    const QString shown = QTextDocumentFragment::fromHtml(tip).toPlainText();
    if (!shown.contains(m_name.simplified()) || shown.contains(QChar::ObjectReplacementCharacter)) {
        Note(widget, QStringLiteral("has a tool tip in rich text"), tip);
    }
}

/// What a screen reader gets is asked for independently of how it is drawn.
void HostileMarkupInspector::JudgeAccessible(QWidget& widget)
{
    const auto* label = qobject_cast<const QLabel*>(&widget);
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&widget);
    if (label == nullptr || interface == nullptr || !label->text().contains(m_name)) {
        return;
    }
    const QString spoken = interface->text(QAccessible::Name);
    if (!spoken.contains(m_name) && !WithoutMnemonics(m_name).contains(spoken)) {
        Note(widget, QStringLiteral("is read out as another text"), spoken);
    }
}

void HostileMarkupInspector::Compare(const QString& where, const QString& text, const QString& wanted)
{
    ++m_texts;
    if (text != wanted) {
        m_findings.append(QStringLiteral("\"") + m_name + QStringLiteral("\" in ") + where + QStringLiteral(": \"") +
                          text + QStringLiteral("\" and not \"") + wanted + u'"');
    }
}

void HostileMarkupInspector::Note(const QWidget& widget, const QString& what, const QString& text)
{
    m_findings.append(QStringLiteral("\"") + m_name + QStringLiteral("\": ") + widget.objectName() + u' ' + what +
                      QStringLiteral(": \"") + text + u'"');
}

} // namespace quillon::reliability
