#include "store/stale_files.h"
#include "tests/reliability/faults/scene.h"

#include <algorithm>
#include <exception>
#include <filesystem>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

namespace quillon::reliability {
namespace {

constexpr const char* kUsage = "usage: quillon_reliability_operation run OPERATION FOLDER\n"
                               "       quillon_reliability_operation next-start FOLDER\n"
                               "       quillon_reliability_operation lay-out FOLDER";

/// One operation with the system's own calls. @return 0 when it succeeded, 1 when it did not.
int RunOperation(const std::string& name, const std::filesystem::path& folder)
{
    store::ProfileStore store;
    return OperationOf(name).run(store, store::ProgramFolder(folder / "Quillon")) ? 0 : 1;
}

int NextStart(const std::filesystem::path& folder)
{
    store::FileCalls calls;
    store::RemoveStaleFiles(calls, store::ProgramFolder(folder / "Quillon"));
    return 0;
}

/// Lays out OPERATION/STATE/before and after in a folder, and prints of each a line: operation, state, whether the
/// operation succeeds, its file behind all links, whether it makes a missing file.
int LayOutAll(const std::filesystem::path& folder)
{
    for (const Operation& operation : Operations()) {
        for (const StateName& state : States()) {
            const Scene scene = MakeScene(operation, state.state);
            if (scene.isReadOnly) {
                continue; // takes another user or another file system
            }
            LayOut(folder / operation.name / state.name / "before", scene.before);
            LayOut(folder / operation.name / state.name / "after", scene.after);
            std::cout << operation.name << '\t' << state.name << '\t' << scene.isDone << '\t' << scene.file << '\t'
                      << scene.createsFile << '\n';
        }
    }
    return 0;
}

int Run(const std::vector<std::string>& arguments)
{
    if (arguments.size() == 3 && arguments[0] == "run") {
        return RunOperation(arguments[1], arguments[2]);
    }
    if (arguments.size() == 2 && arguments[0] == "next-start") {
        return NextStart(arguments[1]);
    }
    if (arguments.size() == 2 && arguments[0] == "lay-out") {
        return LayOutAll(arguments[1]);
    }
    throw std::invalid_argument(kUsage);
}

} // namespace
} // namespace quillon::reliability

int main(int argc, char* argv[])
{
    try {
        return quillon::reliability::Run(std::vector<std::string>(argv + 1, argv + argc));
    } catch (const std::exception& error) {
        std::cerr << error.what() << std::endl;
        return 2;
    }
}
