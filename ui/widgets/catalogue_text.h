#pragma once

#include "ui/widgets/catalogue_list_box.h"

#include <QList>
#include <QString>

#include <string>
#include <string_view>
#include <vector>

namespace quillon::ui {

/// Text of a name that stands in a catalogue file (single-byte code page).
[[nodiscard]] QString SectionText(std::string_view bytes);

/// Text of a maker's name: its file's name, UTF-8 where it is valid, else the files' code page.
[[nodiscard]] QString MakerText(std::string_view bytes);

/// The words for a maker's file that could not be read. @param maker  as the file is named
[[nodiscard]] QString NotRead(std::string_view maker);

/// A shown text as the records hold it (single-byte code page); what the code page lacks becomes "?".
[[nodiscard]] std::string RecordText(const QString& text);

[[nodiscard]] QList<CatalogueEntry> MakerEntries(const std::vector<std::string>& names);
[[nodiscard]] QList<CatalogueEntry> SectionEntries(const std::vector<std::string>& names);

} // namespace quillon::ui
