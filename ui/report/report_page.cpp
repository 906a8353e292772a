#include "ui/report/report_page.h"

#include "ui/report/label_text.h"
#include "ui/report/print_system_report.h"

#include <QBuffer>
#include <QLabel>
#include <QPainter>
#include <QPdfWriter>

#include <algorithm>

namespace quillon::ui {

namespace {

/// At this resolution the page counts in twips, as the form does.
constexpr int kTwipsPerInch = 1440;

/// The whole paper lying on its long side; some papers are defined that way (Ledger), most are not.
QPageLayout LandscapePaper(const QPageSize& size)
{
    const QSizeF points = size.size(QPageSize::Point);
    const bool lies = points.width() > points.height();
    QPageLayout paper(size, lies ? QPageLayout::Portrait : QPageLayout::Landscape, QMarginsF());
    paper.setMode(QPageLayout::FullPageMode);
    return paper;
}

/// How much smaller the form is drawn. Its centre is that of the paper, so the wider of two opposite margins counts on
/// both sides.
double ScaleOnto(const QSizeF& paper, const QMarginsF& margins, const QSizeF& form)
{
    const double width = paper.width() - 2 * std::max(margins.left(), margins.right());
    const double height = paper.height() - 2 * std::max(margins.top(), margins.bottom());
    const double scale = std::min({1.0, width / form.width(), height / form.height()});
    // Margins that leave nothing of the page are no margins to go by.
    return scale > 0 ? scale : std::min({1.0, paper.width() / form.width(), paper.height() / form.height()});
}

void DrawForm(QPdfWriter& writer, const PrintSystemReport& form, const QMarginsF& margins)
{
    const QSizeF paper = writer.pageLayout().fullRectPixels(kTwipsPerInch).size();
    const QSizeF size = form.SizeInTwips();
    const double scale = ScaleOnto(paper, margins, size);

    QPainter painter(&writer);
    painter.translate(paper.width() / 2, paper.height() / 2);
    painter.scale(scale, scale);
    painter.translate(-size.width() / 2, -size.height() / 2);
    for (const QLabel* label : form.findChildren<QLabel*>()) {
        LabelText(*label).Paint(painter);
    }
}

} // namespace

QByteArray RenderReport(const PrintSystemReport& form, const QPageLayout& page)
{
    if (!page.isValid()) {
        return {};
    }
    QByteArray document;
    QBuffer buffer(&document);
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        writer.setResolution(kTwipsPerInch);
        writer.setPageLayout(LandscapePaper(page.pageSize()));
        writer.setTitle(form.findChild<QLabel*>(QStringLiteral("lblHeader"))->text());
        writer.setCreator(QStringLiteral("Quillon"));
        const QMargins margins = page.marginsPixels(kTwipsPerInch);
        DrawForm(writer, form, margins);
    }
    return document;
}

} // namespace quillon::ui
