#include "ui/report/print_out.h"

#include "ui/widgets/layout_parts.h"
#include "ui/widgets/looks.h"
#include "ui/widgets/quiet_label.h"
#include "ui/widgets/scrolled_window.h"
#include "ui/widgets/spoken.h"
#include "ui/widgets/titled_frame.h"

#include <QComboBox>
#include <QGridLayout>
#include <QPlainTextEdit>
#include <QPushButton>

#include <algorithm>

namespace quillon::ui {

namespace {

enum Row { ListLabels, Lists, NotesLabel, Notes };

constexpr int kListCharacters = 16;
constexpr int kNotesLines = 8;
constexpr int kNotesShareOfScreen = 4; ///< at most a quarter of it, so that the buttons below stay on a small one

QuietLabel* AddLabel(QWidget& frame, const QString& name, const QString& text, QWidget* buddy)
{
    auto* label = new QuietLabel(QuietLabel::Tone::Quiet, 1.0, &frame);
    label->setObjectName(name);
    label->setText(text);
    label->setBuddy(buddy);
    SetSpokenName(*buddy, text);
    return label;
}

// A long name is cut in the list rather than widen the dialog.
void BoundWidth(QComboBox& list)
{
    list.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    list.setMinimumContentsLength(kListCharacters);
}

} // namespace

void PrintOut::LayOut()
{
    const int unit = BaseUnit();
    auto* frame = new TitledFrame(QStringLiteral("Print Options"), this);
    frame->setObjectName(QStringLiteral("FramePrintOptions"));
    for (QWidget* field : QList<QWidget*>{m_printerList, m_fonts, m_notes}) {
        field->setParent(frame);
    }
    BoundWidth(*m_printerList);
    BoundWidth(*m_fonts);
    m_notes->setTabChangesFocus(true);
    m_notes->setMinimumHeight(
        std::min(kNotesLines * m_notes->fontMetrics().lineSpacing(), RoomFor(*this).height() / kNotesShareOfScreen));

    auto* grid = new QGridLayout(frame);
    grid->setContentsMargins(0, unit, 0, 0);
    grid->setHorizontalSpacing(2 * unit);
    grid->setVerticalSpacing(unit);
    grid->addWidget(AddLabel(*frame, QStringLiteral("lblprinter"), QStringLiteral("Select Printer from list below."),
                             m_printerList),
                    ListLabels, 0);
    grid->addWidget(
        AddLabel(*frame, QStringLiteral("lblFonts"), QStringLiteral("Select Font from list below."), m_fonts),
        ListLabels, 1);
    grid->addWidget(m_printerList, Lists, 0);
    grid->addWidget(m_fonts, Lists, 1);
    grid->addWidget(
        AddLabel(*frame, QStringLiteral("Label1"), QStringLiteral("Enter any notes for this report."), m_notes),
        NotesLabel, 0, 1, 2);
    grid->addWidget(m_notes, Notes, 0, 1, 2);
    grid->setRowStretch(Notes, 1);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(3 * unit, 3 * unit, 3 * unit, 3 * unit);
    column->setSpacing(2 * unit);
    column->addLayout(InCard(frame), 1);
    column->addLayout(ButtonRow({m_print, m_stop}, {m_cancel, m_finish}));

    const QList<QWidget*> order{m_printerList, m_fonts, m_notes, m_print, m_stop, m_cancel, m_finish};
    for (qsizetype i = 1; i < order.size(); ++i) {
        setTabOrder(order.at(i - 1), order.at(i));
    }
    ScrollWhatHasNoRoom(*this);
}

} // namespace quillon::ui
