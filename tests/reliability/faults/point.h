#pragma once

#include "tests/reliability/faults/fault_calls.h"
#include "tests/reliability/faults/scene.h"

#include <filesystem>
#include <string>
#include <vector>

namespace quillon::reliability {

/// One operation in one state with its faults.
struct Point
{
    const Operation* operation;
    const Scene* scene;
    const char* state;
    std::vector<Fault> faults;
    bool isRetried = true; ///< whether the operation is tried again in peace when the file is still the old one
};

/// What was wrong, counted over many points.
struct Figures
{
    long points = 0;
    long torn = 0;           ///< the file is neither the old nor the new one, or another file changed
    long falseSuccesses = 0; ///< success without the new file
    long falseFailures = 0;  ///< failure with the new file, though nothing failed behind the replacement
    long strays = 0;         ///< temporary files behind the next start, or behind a single fault that killed nobody
    long wrongReads = 0;     ///< the program reads something else than stands in the file
    long stuck = 0;          ///< the operation does not succeed when it is tried again in peace

    [[nodiscard]] bool IsClean() const noexcept
    {
        return torn + falseSuccesses + falseFailures + strays + wrongReads + stuck == 0;
    }
};

/// Runs points in a folder of its own, each from a fresh state.
class Runner
{
public:
    /// @param folder  used by nobody else.
    explicit Runner(std::filesystem::path folder);

    /// The calls that an operation makes when none of them fails. @throws std::runtime_error when it does not do
    /// what it should.
    std::vector<CallKind> Calls(const Operation& operation, const Scene& scene);

    /// Runs a point, counts it, and prints what is wrong with it.
    void Run(const Point& point);

    [[nodiscard]] const Figures& Found() const noexcept { return m_figures; }

private:
    enum class Outcome { Done, Failed, Killed };

    Outcome Perform(const Operation& operation, FaultCalls& calls, store::ProfileStore& store) const;
    void CheckFiles(const Point& point, Outcome outcome, const FaultCalls& calls, const Tree& tree);
    void CheckReading(const Point& point, store::ProfileStore& store, const Tree& tree);
    void CheckRetry(const Point& point, FaultCalls& calls, store::ProfileStore& store);
    void CheckNextStart(const Point& point, Tree tree);
    [[nodiscard]] std::string ReadOnlyFile(const Scene& scene) const;
    void Report(long& count, const Point& point, const std::string& what);

    std::filesystem::path m_folder;
    store::ProgramFolder m_program;
    Figures m_figures;
};

} // namespace quillon::reliability
