#include "ui/platform/printers_page.h"

#include <cups/cups.h>
#include <cups/pwg.h>

#include <QLocale>
#include <QSizeF>

#include <algorithm>
#include <optional>

namespace quillon::ui {

namespace {

// The protocol counts in hundredths of a millimetre.
constexpr double kPerMillimetre = 100.0;
constexpr int kUsualMargin = 635;

struct Paper
{
    int width = 0;
    int length = 0;
    int side = kUsualMargin; ///< wider of the margins at the long edges
    int end = kUsualMargin;  ///< wider of the margins at the short edges
};

int IntegerIn(ipp_t* collection, const char* name, int missing)
{
    ipp_attribute_t* found = ippFindAttribute(collection, name, IPP_TAG_INTEGER);
    return found == nullptr ? missing : ippGetInteger(found, 0);
}

std::optional<Paper> DescribedPaper(ipp_t& description)
{
    ipp_attribute_t* media = ippFindAttribute(&description, "media-col-default", IPP_TAG_BEGIN_COLLECTION);
    if (media == nullptr) {
        return std::nullopt;
    }
    ipp_t* values = ippGetCollection(media, 0);
    ipp_attribute_t* size = ippFindAttribute(values, "media-size", IPP_TAG_BEGIN_COLLECTION);
    if (size == nullptr) {
        return std::nullopt;
    }
    Paper paper;
    paper.width = IntegerIn(ippGetCollection(size, 0), "x-dimension", 0);
    paper.length = IntegerIn(ippGetCollection(size, 0), "y-dimension", 0);
    paper.side = std::max(IntegerIn(values, "media-left-margin", kUsualMargin),
                          IntegerIn(values, "media-right-margin", kUsualMargin));
    paper.end = std::max(IntegerIn(values, "media-top-margin", kUsualMargin),
                         IntegerIn(values, "media-bottom-margin", kUsualMargin));
    return paper;
}

std::optional<Paper> NamedPaper(ipp_t& description)
{
    ipp_attribute_t* name = ippFindAttribute(&description, "media-default", IPP_TAG_ZERO);
    const pwg_media_t* media = name == nullptr ? nullptr : pwgMediaForPWG(ippGetString(name, 0, nullptr));
    if (media == nullptr) {
        return std::nullopt;
    }
    return Paper{media->width, media->length};
}

Paper PaperOf(ipp_t& description)
{
    for (const auto& paper : {DescribedPaper(description), NamedPaper(description)}) {
        if (paper && paper->width > 0 && paper->length > 0) {
            return *paper;
        }
    }
    return QLocale().measurementSystem() == QLocale::ImperialUSSystem ? Paper{21590, 27940} : Paper{21000, 29700};
}

} // namespace

QPageLayout LandscapePageIn(ipp_t& description)
{
    const Paper paper = PaperOf(description);
    const QSizeF millimetres(paper.width / kPerMillimetre, paper.length / kPerMillimetre);
    const double side = paper.side / kPerMillimetre;
    const double end = paper.end / kPerMillimetre;
    return {QPageSize(millimetres, QPageSize::Millimeter), QPageLayout::Landscape, QMarginsF(end, side, end, side),
            QPageLayout::Millimeter};
}

QByteArray MediaName(const QPageLayout& page)
{
    const QSizeF millimetres = page.pageSize().size(QPageSize::Millimeter);
    const pwg_media_t* media =
        pwgMediaForSize(qRound(millimetres.width() * kPerMillimetre), qRound(millimetres.height() * kPerMillimetre));
    return media == nullptr ? QByteArray() : QByteArray(media->pwg);
}

} // namespace quillon::ui
