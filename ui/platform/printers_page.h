#pragma once

#include <cups/ipp.h>

#include <QPageLayout>
#include <QString>

namespace quillon::ui {

/// Landscape page of the paper that a printer's description names as its default; the locale's paper when it names
/// none. The margins are the same to the left and right and at top and bottom, as wide as the wider of the two edges
/// that the paper may be turned to: printers turn the page either way.
[[nodiscard]] QPageLayout LandscapePageIn(ipp_t& description);

/// The printing protocol's name of a page's paper, as the service takes it: "iso_a4_210x297mm".
[[nodiscard]] QByteArray MediaName(const QPageLayout& page);

} // namespace quillon::ui
