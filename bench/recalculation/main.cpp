#include "bench/recalculation/plain_chain.h"
#include "bench/recalculation/samples.h"
#include "bench/recalculation/textbook.h"
#include "engine/calculations.h"

#include <benchmark/benchmark.h>

#include <cstddef>

namespace quillon::bench {
namespace {

/// Takes each text as a label would, and does nothing with it.
class NoLabels : public engine::ResultsDisplay
{
public:
    void ShowResult(engine::ResultLabel label, engine::SystemId /*system*/, std::string_view text) override
    {
        Take(label, text);
    }

    void ShowFormula(engine::ResultLabel label, engine::SystemId /*system*/, std::string_view text) override
    {
        Take(label, text);
    }

    void CompareSystems() override { benchmark::ClobberMemory(); }

private:
    static void Take(engine::ResultLabel label, std::string_view text)
    {
        benchmark::DoNotOptimize(label);
        benchmark::DoNotOptimize(text.data());
        benchmark::ClobberMemory();
    }
};

class NoHooks : public engine::EngineHooks
{
public:
    void Beep() override { benchmark::ClobberMemory(); }

    void LetPendingEventsRun() override { benchmark::ClobberMemory(); }
};

/// The program's computation of System One, ready to take samples.
class Program
{
public:
    Program()
    {
        m_calculations.BuildDBTable();
        m_calculations.BuildVSWRTable();
        engine::SystemData& data = m_systems.Data[engine::SystemId::One];
        data.GainType = kGainType;
        data.UseAntennaList = engine::kTrue;
        m_systems.State[engine::SystemId::One].SetFlag(engine::kComputeFlag, engine::kTrue);
    }

    void Refresh(const Sample& sample)
    {
        Enter(sample, m_systems);
        m_calculations.RefreshData(1);
    }

    [[nodiscard]] engine::Computation Compute(const Sample& sample)
    {
        Enter(sample, m_systems);
        return m_calculations.Compute(1);
    }

private:
    engine::AntennaSystems m_systems;
    NoLabels m_labels;
    NoHooks m_hooks;
    engine::Calculations m_calculations{m_systems, m_labels, m_hooks};
};

/// Gives a piece of work one sample after the other.
template <class Work>
void Repeat(benchmark::State& state, const Work& work)
{
    const Samples samples = MakeSamples();
    std::size_t next = 0;
    for ([[maybe_unused]] auto _ : state) {
        work(samples[next]);
        next = (next + 1) % samples.size();
    }
}

void RefreshProgram(benchmark::State& state)
{
    Program program;
    Repeat(state, [&program](const Sample& sample) { program.Refresh(sample); });
}

void ShowTextbook(benchmark::State& state)
{
    NoLabels labels;
    Repeat(state, [&labels](const Sample& sample) { ShowTextbookResults(sample, labels); });
}

void ComputeProgram(benchmark::State& state)
{
    Program program;
    Repeat(state, [&program](const Sample& sample) {
        const engine::Computation computation = program.Compute(sample);
        benchmark::DoNotOptimize(&computation);
        benchmark::ClobberMemory();
    });
}

void ComputePlainly(benchmark::State& state)
{
    const engine::DBTable dBTable = engine::BuildDBTable();
    const engine::VSWRTable vswrTable = engine::BuildVSWRTable();
    Repeat(state, [&](const Sample& sample) {
        const engine::SystemResults results = PlainResults(sample, dBTable, vswrTable);
        benchmark::DoNotOptimize(&results);
        benchmark::ClobberMemory();
    });
}

BENCHMARK(RefreshProgram)->Name("recalculation/Quillon");
BENCHMARK(ShowTextbook)->Name("recalculation/textbook");
BENCHMARK(ComputeProgram)->Name("chain/Quillon");
BENCHMARK(ComputePlainly)->Name("chain/plain loop");

} // namespace
} // namespace quillon::bench

BENCHMARK_MAIN();
