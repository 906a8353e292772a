#pragma once

#include <QByteArray>
#include <QPageLayout>

namespace quillon::ui {

class PrintSystemReport;

/// Draws the report as a PDF document of one landscape page: text as text, black on white, fonts embedded.
/// The form stands in the middle of the paper, at its own size; it is drawn smaller only when it would reach into the
/// margins otherwise.
/// @param page  the paper and the margins that the printer cannot print on, as they lie around the landscape page;
///              its orientation does not count.
/// @return the document; empty when page is not valid.
[[nodiscard]] QByteArray RenderReport(const PrintSystemReport& form, const QPageLayout& page);

} // namespace quillon::ui
