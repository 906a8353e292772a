#pragma once

#include "engine/computation.h"
#include "engine/db_table.h"
#include "engine/number_writer.h"
#include "engine/power_formula.h"
#include "engine/records.h"
#include "engine/results_display.h"
#include "engine/vswr_table.h"

#include <string>

namespace quillon::engine {

/// Turns the inputs of one system into its results and hands their texts to the display.
///
/// Every public operation either completes, with its results stored and shown, or throws ArithmeticError and leaves
/// the results and the display as they were; only beeps and search steps are passed on at once. System numbers are 1
/// and 2: any other throws std::out_of_range.
class Calculations
{
public:
    /// @param systems    the records to work on; must outlive this object, as must display and hooks.
    /// @param separator  decimal separator of the texts handed to the display.
    Calculations(AntennaSystems& systems, ResultsDisplay& display, EngineHooks& hooks, std::string separator = ".");

    /// Fill the fixed tables; the start-up sequence calls each once. Before that no value is found in them.
    void BuildDBTable();
    void BuildVSWRTable();

    [[nodiscard]] const DBTable& dBTable() const noexcept { return m_dBTable; }

    /// Power that a dB value of the system stands for, W; 0 when the value is off the table. Shows its arithmetic.
    /// @param kind  1 antenna power gain, 2 system power, 3 coax power loss, 4 ERP. @throws std::out_of_range else.
    float PowerFromDB(int kind, int system);

    /// Power accepted at the feed point, W; sets the system's mismatch figures. A VSWR off the table gives 0 and leaves
    /// them.
    /// @param power  W that leave the coax
    float ApplyVSWR(float power, int system);

    /// Sets and shows CoaxDBLoss, dB: the one result that is computed whatever the system's flags say.
    void ComputeCoaxDBLoss(int system);

    /// Computes and shows all other results of a system; does nothing while its flag 3 is false.
    void ShowSystemResults(int system);

    /// ComputeCoaxDBLoss, then ShowSystemResults, as one operation that succeeds or fails as a whole.
    void RefreshData(int system);

    /// The first half of RefreshData: works everything out, stores and shows nothing.
    [[nodiscard]] Computation Compute(int system);

private:
    float PowerFromDB(PowerKind kind, Computation& draft);
    float ApplyVSWR(float power, Computation& draft) const;
    void ShowSystemResults(Computation& draft);
    void ShowPowers(Computation& draft);
    void Commit(const Computation& draft);

    AntennaSystems& m_systems;
    ResultsDisplay& m_display;
    EngineHooks& m_hooks;
    NumberWriter m_text;
    DBTable m_dBTable;
    VSWRTable m_vswrTable;
};

} // namespace quillon::engine
