#pragma once

namespace quillon::store {

/// Why a name typed by the user cannot be taken.
enum class NameFault {
    None,
    Empty,
    ForbiddenCharacter, ///< "/", "\" or "|" in a maker's name
    ControlCharacter,
    FolderName,    ///< "." or ".."
    BadEnding,     ///< a maker's name with a blank or a point at its end
    TooLong,       ///< longer than the field or file that must hold it
    NotInCodePage, ///< a character that the data files cannot hold
    NotReadBack    ///< blanks or quotes around the whole, which reading drops
};

} // namespace quillon::store
