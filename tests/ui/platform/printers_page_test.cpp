#include "ui/platform/printers_page.h"

#include <gtest/gtest.h>

#include <QLocale>
#include <QRectF>

#include <array>
#include <cstddef>
#include <memory>

namespace quillon::ui {
namespace {

using Description = std::unique_ptr<ipp_t, decltype(&ippDelete)>;

Description Empty()
{
    return {ippNew(), &ippDelete};
}

Description Named(const char* media)
{
    Description description = Empty();
    ippAddString(description.get(), IPP_TAG_PRINTER, IPP_TAG_KEYWORD, "media-default", nullptr, media);
    return description;
}

/// Paper in hundredths of a millimetre, margins left, top, right, bottom.
Description Described(int width, int length, const std::array<int, 4>& margins)
{
    Description description = Empty();
    const Description size = Empty();
    ippAddInteger(size.get(), IPP_TAG_ZERO, IPP_TAG_INTEGER, "x-dimension", width);
    ippAddInteger(size.get(), IPP_TAG_ZERO, IPP_TAG_INTEGER, "y-dimension", length);
    const Description media = Empty();
    ippAddCollection(media.get(), IPP_TAG_ZERO, "media-size", size.get());
    const std::array<const char*, 4> names{"media-left-margin", "media-top-margin", "media-right-margin",
                                           "media-bottom-margin"};
    for (std::size_t i = 0; i < names.size(); ++i) {
        ippAddInteger(media.get(), IPP_TAG_ZERO, IPP_TAG_INTEGER, names.at(i), margins.at(i));
    }
    ippAddCollection(description.get(), IPP_TAG_PRINTER, "media-col-default", media.get());
    return description;
}

/// A locale for one test.
class DefaultLocale
{
public:
    explicit DefaultLocale(const QLocale& locale) { QLocale::setDefault(locale); }

    ~DefaultLocale() { QLocale::setDefault(m_before); }

    DefaultLocale(const DefaultLocale&) = delete;
    DefaultLocale& operator=(const DefaultLocale&) = delete;

private:
    QLocale m_before;
};

TEST(LandscapePage, IsThePrintersPaperTurned)
{
    const QPageLayout page = LandscapePageIn(*Described(21000, 29700, {635, 635, 635, 635}));
    EXPECT_EQ(page.pageSize().id(), QPageSize::A4);
    EXPECT_EQ(page.orientation(), QPageLayout::Landscape);
    EXPECT_EQ(page.fullRect(QPageLayout::Millimeter).size(), QSizeF(297, 210));
}

TEST(LandscapePage, TakesPaperThatIsRoundedToPointsForTheStandardOne)
{
    // A4 in whole points is 595 x 842: 209.90 mm x 297.04 mm.
    EXPECT_EQ(LandscapePageIn(*Described(20990, 29704, {635, 635, 635, 635})).pageSize().id(), QPageSize::A4);
}

TEST(LandscapePage, HasTheWiderMarginOfBothEdgesThatAreTurnedToOneSide)
{
    const QPageLayout page = LandscapePageIn(*Described(21590, 27940, {400, 600, 500, 1270}));
    EXPECT_EQ(page.pageSize().id(), QPageSize::Letter);
    EXPECT_EQ(page.margins(QPageLayout::Millimeter), QMarginsF(12.7, 5, 12.7, 5));
}

TEST(LandscapePage, OfAPrinterThatOnlyNamesItsPaper)
{
    EXPECT_EQ(LandscapePageIn(*Named("na_letter_8.5x11in")).pageSize().id(), QPageSize::Letter);
}

TEST(LandscapePage, IsTheLocalesPaperForAPrinterThatTellsNothing)
{
    {
        const DefaultLocale american(QLocale(QLocale::English, QLocale::UnitedStates));
        EXPECT_EQ(LandscapePageIn(*Empty()).pageSize().id(), QPageSize::Letter);
    }
    const DefaultLocale german(QLocale(QLocale::German, QLocale::Germany));
    EXPECT_EQ(LandscapePageIn(*Empty()).pageSize().id(), QPageSize::A4);
    EXPECT_EQ(LandscapePageIn(*Named("no_such_paper")).pageSize().id(), QPageSize::A4);
}

TEST(MediaName, IsTheProtocolsNameOfThePaperHoweverItIsTurned)
{
    const QMarginsF margins;
    EXPECT_EQ(MediaName({QPageSize(QPageSize::A4), QPageLayout::Landscape, margins}), "iso_a4_210x297mm");
    EXPECT_EQ(MediaName({QPageSize(QPageSize::Letter), QPageLayout::Portrait, margins}), "na_letter_8.5x11in");
}

} // namespace
} // namespace quillon::ui
