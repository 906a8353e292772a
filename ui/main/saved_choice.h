#pragma once

#include <cstddef>
#include <string_view>

namespace quillon::ui {

class CatalogueListBox;

/// Chooses the entry that a record's name stands for: the one that equals it, else the first one that does once it is
/// cut to the record's width, without its outer blanks and without regard to letter case.
/// @param name   as the record holds it (single-byte code page), trimmed
/// @param width  characters that the record has for the name
/// @return whether there is such an entry; without one the list stays as it was.
bool ChooseSaved(CatalogueListBox& list, std::string_view name, std::size_t width);

} // namespace quillon::ui
