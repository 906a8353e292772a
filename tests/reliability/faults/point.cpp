#include "tests/reliability/faults/point.h"

#include "store/stale_files.h"

#include <iostream>
#include <stdexcept>
#include <utility>

namespace quillon::reliability {
namespace {

/// The trees alike but for the operation's file and temporary ones beside it.
Tree WithoutFile(Tree tree, const std::string& file)
{
    tree.erase(file);
    return tree;
}

std::string TextIn(const Tree& tree, const std::string& file)
{
    const auto found = tree.find(file);
    return found == tree.end() ? std::string() : found->second.text;
}

std::string TemporaryOf(const std::string& file)
{
    const std::size_t begin = file.rfind('/') + 1;
    return file.substr(0, begin) + "." + file.substr(begin) + ".tmp";
}

/// A missing file and an empty one read alike; the first step of some operations makes the one of the other.
bool IsOld(const Tree& found, const Scene& scene)
{
    const bool isThere = found.contains(scene.file);
    return TextIn(found, scene.file) == TextIn(scene.before, scene.file) &&
           (isThere == scene.before.contains(scene.file) || scene.createsFile);
}

bool IsNew(const Tree& found, const Scene& scene)
{
    return found.contains(scene.file) == scene.after.contains(scene.file) &&
           TextIn(found, scene.file) == TextIn(scene.after, scene.file);
}

} // namespace

Runner::Runner(std::filesystem::path folder)
    : m_folder(std::move(folder))
    , m_program(m_folder / "Quillon")
{
}

std::string Runner::ReadOnlyFile(const Scene& scene) const
{
    return scene.isReadOnly ? (m_folder / scene.file).string() : std::string();
}

void Runner::Report(long& count, const Point& point, const std::string& what)
{
    ++count;
    std::cout << what << ": " << point.operation->name << ", " << point.state;
    for (const Fault& fault : point.faults) {
        std::cout << ", " << ToText(fault);
    }
    std::cout << std::endl;
}

Runner::Outcome Runner::Perform(const Operation& operation, FaultCalls& calls, store::ProfileStore& store) const
{
    try {
        const bool isDone = operation.run(store, m_program);
        return calls.IsKilled() ? Outcome::Killed : isDone ? Outcome::Done : Outcome::Failed;
    } catch (const Killed&) {
        return Outcome::Killed;
    }
}

std::vector<CallKind> Runner::Calls(const Operation& operation, const Scene& scene)
{
    LayOut(m_folder, scene.before);
    FaultCalls calls({}, ReadOnlyFile(scene));
    store::ProfileStore store(calls);
    const bool isDone = Perform(operation, calls, store) == Outcome::Done;
    if (isDone != scene.isDone || ReadTree(m_folder) != scene.after) {
        throw std::runtime_error(operation.name + " goes wrong even in peace");
    }
    return calls.Kinds();
}

void Runner::Run(const Point& point)
{
    ++m_figures.points;
    LayOut(m_folder, point.scene->before);
    FaultCalls calls(point.faults, ReadOnlyFile(*point.scene));
    store::ProfileStore store(calls);
    const Outcome outcome = Perform(*point.operation, calls, store);
    const Tree tree = ReadTree(m_folder);
    CheckFiles(point, outcome, calls, tree);
    calls.Calm();
    if (outcome != Outcome::Killed) {
        CheckReading(point, store, tree);
    }
    CheckNextStart(point, tree);
    if (point.isRetried && outcome != Outcome::Killed && !IsNew(tree, *point.scene)) {
        CheckRetry(point, calls, store); // an addition would be refused the second time
    }
}

void Runner::CheckFiles(const Point& point, Outcome outcome, const FaultCalls& calls, const Tree& tree)
{
    const Scene& scene = *point.scene;
    Tree found = tree;
    const bool isStray = found.erase(TemporaryOf(scene.file)) != 0;
    if (isStray && outcome != Outcome::Killed && point.faults.size() < 2) {
        Report(m_figures.strays, point, "temporary file left");
    }
    const bool isNew = IsNew(found, scene);
    const bool isOld = IsOld(found, scene);
    if ((!isNew && !isOld) || WithoutFile(found, scene.file) != WithoutFile(scene.before, scene.file)) {
        Report(m_figures.torn, point, "torn");
    }
    if (outcome == Outcome::Done && (!isNew || !scene.isDone)) {
        Report(m_figures.falseSuccesses, point, "false success");
    }
    if (outcome == Outcome::Failed && isNew && !isOld && !calls.HasFailedBehindRename()) {
        Report(m_figures.falseFailures, point, "false failure");
    }
}

void Runner::CheckReading(const Point& point, store::ProfileStore& store, const Tree& tree)
{
    const Scene& scene = *point.scene;
    if (store.Read(m_folder / point.operation->file).Bytes() != TextIn(tree, scene.file)) {
        Report(m_figures.wrongReads, point, "wrong read");
    }
}

void Runner::CheckRetry(const Point& point, FaultCalls& calls, store::ProfileStore& store)
{
    const Scene& scene = *point.scene;
    const bool isDone = Perform(*point.operation, calls, store) == Outcome::Done;
    if (isDone != scene.isDone || ReadTree(m_folder) != scene.after) {
        Report(m_figures.stuck, point, "not done when tried again");
    }
}

void Runner::CheckNextStart(const Point& point, Tree tree)
{
    store::FileCalls calls;
    store::RemoveStaleFiles(calls, m_program);
    tree.erase(TemporaryOf(point.scene->file));
    if (ReadTree(m_folder) != tree) {
        Report(m_figures.strays, point, "something left behind, or taken away, by the next start");
    }
    store::ProfileStore store;
    if (store.Read(m_folder / point.operation->file).Bytes() != TextIn(tree, point.scene->file)) {
        Report(m_figures.wrongReads, point, "wrong read at the next start");
    }
}

} // namespace quillon::reliability
