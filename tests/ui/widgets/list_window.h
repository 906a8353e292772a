#pragma once

#include "tests/support/shown_window.h"
#include "ui/widgets/catalogue_list_box.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QLineEdit>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QWheelEvent>

namespace quillon::ui {

inline QList<CatalogueEntry> Entries(const QStringList& texts)
{
    QList<CatalogueEntry> entries;
    for (const QString& text : texts) {
        entries.append({text, text.toLatin1().toLower()});
    }
    return entries;
}

/// Two lists of a chain in a window, the first one with the focus.
class ListWindow : public testing::Test
{
protected:
    ListWindow()
    {
        auto* column = new QVBoxLayout(&m_window);
        column->addWidget(m_list);
        column->addWidget(m_next);
        m_list->SetNext(m_next);
        m_list->Fill(Entries({QStringLiteral("Basic Beams"), QStringLiteral("Hamstick"), QStringLiteral("HY-GAIN"),
                              QStringLiteral("Hygienic")}));
        m_next->Fill(Entries({QStringLiteral("TH7DX"), QStringLiteral("TH3JR")}));
        test::ShowActive(m_window);
        m_list->setFocus(Qt::TabFocusReason);
    }

    void Type(const QString& text) { test::Type(m_window, text); }

    void Click(Qt::Key key) { test::Click(m_window, key); }

    [[nodiscard]] QString Text() const { return m_list->currentText(); }

    [[nodiscard]] int Caret() const { return m_list->lineEdit()->cursorPosition(); }

    [[nodiscard]] qsizetype Chosen() const { return m_chosen.count(); }

    [[nodiscard]] static bool IsOpen(CatalogueListBox& list) { return list.view()->isVisible(); }

    /// All of the text is selected, and the caret stands before it so that it shows from its start.
    [[nodiscard]] bool MarkedFromStart() const
    {
        return Caret() == 0 && m_list->lineEdit()->selectedText() == m_list->currentText();
    }

    static bool Wheel(CatalogueListBox& list, int turn)
    {
        QWheelEvent event(QPointF(5, 5), list.mapToGlobal(QPointF(5, 5)), {}, {0, turn}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&list, &event);
        return event.isAccepted();
    }

    QWidget m_window;
    CatalogueListBox* m_list = new CatalogueListBox(&m_window);
    CatalogueListBox* m_next = new CatalogueListBox(&m_window);
    QSignalSpy m_chosen{m_list, &CatalogueListBox::Chosen};
};

} // namespace quillon::ui
