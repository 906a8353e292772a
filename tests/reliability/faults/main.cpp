#include "tests/reliability/faults/point.h"
#include "tests/support/temp_folder.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <exception>
#include <iostream>
#include <iterator>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

namespace quillon::reliability {
namespace {

constexpr std::array kErrors{EIO, ENOSPC, EDQUOT, EINTR, EACCES, EROFS, ENOMEM};
/// Further errors that the system knows for calls on files.
constexpr std::array kMoreErrors{EMFILE, ENFILE,    EPERM,  EBUSY, EFBIG,    ELOOP,
                                 ESTALE, ETIMEDOUT, EAGAIN, ENXIO, EOVERFLOW};

struct Options
{
    bool isWide = false; ///< with further errors
    long pairs = 0;
    std::uint64_t seed = 1;
};

struct Place
{
    const Operation* operation;
    const char* state;
    Scene scene;
    std::vector<CallKind> calls;
};

/// All faults that can befall one call.
std::vector<Fault> FaultsAt(int call, CallKind kind, bool isWide)
{
    std::vector<Fault> faults{{call, Fault::Kind::Kill}};
    for (const int error : kErrors) {
        faults.push_back({call, Fault::Kind::Error, error});
    }
    for (const int error : kMoreErrors) {
        if (isWide) {
            faults.push_back({call, Fault::Kind::Error, error});
        }
    }
    for (int part = 0; part < static_cast<int>(kParts.size()); ++part) {
        if (kind != CallKind::Other) {
            faults.push_back({call, Fault::Kind::Short, 0, part});
        }
        if (kind == CallKind::Write) {
            faults.push_back({call, Fault::Kind::KillPart, 0, part});
        }
    }
    return faults;
}

std::vector<Place> FindPlaces(Runner& runner)
{
    std::vector<Place> places;
    for (const Operation& operation : Operations()) {
        for (const StateName& state : States()) {
            Scene scene = MakeScene(operation, state.state);
            std::vector<CallKind> calls = runner.Calls(operation, scene);
            places.push_back({&operation, state.name, std::move(scene), std::move(calls)});
        }
    }
    return places;
}

void RunSingles(Runner& runner, const std::vector<Place>& places, bool isWide)
{
    for (const Place& place : places) {
        for (std::size_t call = 0; call < place.calls.size(); ++call) {
            for (const Fault& fault : FaultsAt(static_cast<int>(call) + 1, place.calls[call], isWide)) {
                runner.Run({place.operation, &place.scene, place.state, {fault}});
            }
        }
    }
}

/// A number from 0 to below a limit, the same one on every machine.
std::size_t Below(std::mt19937_64& random, std::size_t limit)
{
    return static_cast<std::size_t>(random() % limit);
}

/// Two faults at one operation, of which the first does not end the process. The second may fall on a call that is only
/// made because of the first.
void RunPair(Runner& runner, const std::vector<Place>& places, std::mt19937_64& random)
{
    constexpr std::size_t kFurtherCalls = 6;
    const Place& place = places[Below(random, places.size())];
    const std::size_t first = Below(random, place.calls.size());
    const std::size_t second = first + 1 + Below(random, place.calls.size() - first + kFurtherCalls);
    const auto choose = [&random, &place](std::size_t call) {
        const CallKind kind = call < place.calls.size() ? place.calls[call] : CallKind::Other;
        const std::vector<Fault> faults = FaultsAt(static_cast<int>(call) + 1, kind, true);
        return faults[Below(random, faults.size())];
    };
    Fault before = choose(first);
    while (before.kind == Fault::Kind::Kill || before.kind == Fault::Kind::KillPart) {
        before = choose(first);
    }
    const bool isRetried = Below(random, 8) == 0;
    runner.Run({place.operation, &place.scene, place.state, {before, choose(second)}, isRetried});
}

Options ReadOptions(const std::vector<std::string>& arguments)
{
    Options options;
    for (std::size_t place = 0; place < arguments.size(); ++place) {
        if (arguments[place] == "--wide") {
            options.isWide = true;
        } else if (arguments[place] == "--pairs") {
            options.pairs = std::stol(arguments.at(++place));
        } else if (arguments[place] == "--seed") {
            options.seed = std::stoull(arguments.at(++place));
        } else {
            throw std::invalid_argument("usage: quillon_reliability_faults [--wide] [--pairs N] [--seed S]");
        }
    }
    return options;
}

/// @return whether nothing was wrong.
bool Run(const Options& options)
{
    const support::TempFolder folder;
    Runner runner(folder.Path() / "program");
    const std::vector<Place> places = FindPlaces(runner);
    RunSingles(runner, places, options.isWide);
    const long singles = runner.Found().points;
    std::mt19937_64 random(options.seed);
    std::vector<Place> quickPlaces;
    std::ranges::remove_copy_if(places, std::back_inserter(quickPlaces),
                                [](const Place& place) { return std::string(place.state) == "long"; });
    for (long pair = 0; pair < options.pairs; ++pair) {
        RunPair(runner, quickPlaces, random);
    }
    const Figures& found = runner.Found();
    std::cout << "seed " << options.seed << "\n"
              << singles << " points, " << found.points - singles << " with two faults, " << found.torn
              << " torn files, " << found.falseSuccesses << " false successes, " << found.falseFailures
              << " false failures, " << found.strays << " stray files after the next start, " << found.wrongReads
              << " wrong reads, " << found.stuck << " stuck" << std::endl;
    return found.IsClean();
}

} // namespace
} // namespace quillon::reliability

int main(int argc, char* argv[])
{
    try {
        using namespace quillon::reliability;
        return Run(ReadOptions(std::vector<std::string>(argv + 1, argv + argc))) ? 0 : 1;
    } catch (const std::exception& error) {
        std::cerr << error.what() << std::endl;
        return 2;
    }
}
