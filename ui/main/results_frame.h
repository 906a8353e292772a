#pragma once

#include "engine/markers.h"
#include "engine/results_display.h"
#include "ui/widgets/result_marker.h"
#include "ui/widgets/titled_frame.h"
#include "ui/widgets/value_label.h"

#include <QLocale>

#include <array>

class QGridLayout;

namespace quillon::ui {

class QuietLabel;
struct ResultRow;

/// The nine results of both systems like a score board: values at the sides, captions between, the better side marked.
class ResultsFrame : public TitledFrame, public engine::ResultsDisplay
{
    Q_OBJECT

public:
    ResultsFrame(const engine::PerSystem<engine::SystemResults>& results, const QLocale& locale,
                 QWidget* parent = nullptr);

    void ShowResult(engine::ResultLabel label, engine::SystemId system, std::string_view text) override;
    void ShowFormula(engine::ResultLabel label, engine::SystemId system, std::string_view text) override;
    void CompareSystems() override;

    /// Shows 0 in every value of a system, with no arithmetic behind it.
    void StartValues(engine::SystemId system);

    void ShowAntennaStatus(engine::SystemId system, const QString& text);
    void ShowCoaxStatus(engine::SystemId system, const QString& text);

private:
    struct Row
    {
        engine::PerSystem<ValueLabel*> values;
        engine::PerSystem<ResultMarker*> markers;
    };

    void AddPlates();
    void AddRow(int place);
    void AddStatusLine();
    [[nodiscard]] QWidget* NewCaption(const ResultRow& row);
    [[nodiscard]] ValueLabel* NewValue(const ResultRow& row, engine::SystemId system);
    [[nodiscard]] ResultMarker* NewMarker(const ResultRow& row, engine::SystemId system);
    void ShowRow(int place);
    void NameValue(int place, engine::SystemId system);

    const engine::PerSystem<engine::SystemResults>& m_results;
    engine::Markers m_markers{};
    QLocale m_locale;
    QGridLayout* m_grid;
    std::array<Row, engine::kResultLabelCount> m_rows{};
    QList<QuietLabel*> m_status;
};

} // namespace quillon::ui
