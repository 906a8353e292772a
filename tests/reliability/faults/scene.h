#pragma once

#include "tests/reliability/faults/operations.h"

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace quillon::reliability {

/// A file of a folder, or a link.
struct Node
{
    bool isLink = false;
    std::string text; ///< what a link leads to, as it stands in the link

    [[nodiscard]] bool operator==(const Node&) const = default;
};

/// Everything in a folder and below it, by path from there.
using Tree = std::map<std::string, Node>;

/// What an operation's file is like before it.
enum class State { Missing, Empty, Normal, CrLf, Link, ReadOnly, OtherSpelling, LinkToLink, Long };

struct StateName
{
    State state;
    const char* name;
};

[[nodiscard]] const std::vector<StateName>& States();

/// A program folder before an operation and behind it, made without the program's own code.
struct Scene
{
    Tree before;
    Tree after;
    std::string file; ///< that the text stands in, behind all links
    bool isDone;      ///< whether the operation succeeds when nothing disturbs it
    bool isReadOnly;  ///< whether the system lets nobody write the file
    bool createsFile; ///< an empty file in the place of a missing one is no more than the operation's first step
};

[[nodiscard]] Scene MakeScene(const Operation& operation, State state);

/// Everything in a folder as it stands on the disk.
[[nodiscard]] Tree ReadTree(const std::filesystem::path& folder);

/// Makes a folder hold a tree and nothing else. Files that are as they should be are left alone.
void LayOut(const std::filesystem::path& folder, const Tree& wanted);

} // namespace quillon::reliability
