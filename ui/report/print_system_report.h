#pragma once

#include "engine/notifier.h"
#include "engine/records.h"
#include "ui/report/comparison_text.h"
#include "ui/report/report_rows.h"

#include <QLocale>
#include <QSize>
#include <QWidget>

#include <array>
#include <string>

class QLabel;

namespace quillon::ui {

/// The page that is printed: captions, both systems' values, the comparison in words, notes and a disclaimer.
/// It is never shown; one object serves for the whole run, and what is added to its notes stays.
class PrintSystemReport : public QWidget
{
    Q_OBJECT

public:
    using LabelRow = std::array<QLabel*, kReportRowCount>;

    /// @param systems, notifier  outlive the form.
    PrintSystemReport(const engine::AntennaSystems& systems, engine::Notifier& notifier, const QLocale& locale,
                      QWidget* parent = nullptr);

    /// Fills both value columns from the records, then compares the systems anew.
    void SetReport();

    /// Fills the comparison column when both systems have antenna and coax; else it stays as it is. Rows that cannot
    /// be compared stay empty, and the user is told so once.
    void DoComparison();

    /// Adds a blank and the notes to what the notes line holds. Notes that need more room are written smaller first,
    /// then the form grows below them.
    void AppendNotes(const QString& notes);

    /// Coax loss of a system, 1 or 2, as the report shows it. @throws std::out_of_range for any other number.
    [[nodiscard]] std::string CoaxLossText(int system) const;

    /// Size of the form in twips: ten inches wide, higher than designed only where the notes need it.
    [[nodiscard]] QSize SizeInTwips() const;

private:
    QLabel* AddLabel(const QString& name, const QString& text, const QRect& twips);
    LabelRow AddColumn(const QString& name, int left, int right);
    void AddHeader();
    void AddCaptions();
    void AddNotes();
    void AddFooters();
    void PlaceNotes();
    void ClearComparison();

    const engine::AntennaSystems& m_systems;
    engine::Notifier& m_notifier;
    std::string m_separator;
    ComparisonRecords m_records;

    LabelRow m_rows;
    engine::PerSystem<LabelRow> m_values;
    LabelRow m_results;
    QLabel* m_notes = nullptr;
    std::array<QLabel*, 2> m_footers{};
};

} // namespace quillon::ui
