#pragma once

#include "store/file_calls.h"
#include "store/program_folder.h"

namespace quillon::store {

/// Removes what a program that was killed while it replaced a data file has left: the file's temporary one, as the next
/// replacement would. The files that the program replaces are the saved systems in its folder, and the makers' files
/// and the index of the antennas. Looked for are TemporaryFile of these names in these two folders and, where one of
/// these files is a link, TemporaryFile of what it leads to. Only a regular file is removed, and of links with such a
/// name neither the link nor what it leads to. What cannot be listed or removed stays.
void RemoveStaleFiles(FileCalls& calls, const ProgramFolder& folder);

} // namespace quillon::store
