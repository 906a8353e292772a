#include "tests/support/application_font.h"
#include "tests/ui/editor/editor_fixture.h"
#include "ui/widgets/titled_frame.h"

#include <QLabel>
#include <QPushButton>

namespace quillon::ui {
namespace {

TEST_F(EditorTest, FitsASmallScreenAtTenPoints)
{
    const test::ApplicationFont font;
    test::ApplicationFont::SetPointSize(10);
    EditAntennas small(window, catalogue, program, *store, notifier);
    EXPECT_LE(small.sizeHint().width(), 1024);
    EXPECT_LE(small.sizeHint().height(), 560) << "which leaves room for a title bar";
}

class FontSize : public EditorTest, public ::testing::WithParamInterface<int>
{
};

TEST_P(FontSize, CutsNoTextInTheSmallestWindow)
{
    const test::ApplicationFont font;
    test::ApplicationFont::SetPointSize(GetParam());
    EditAntennas sized(window, catalogue, program, *store, notifier);
    sized.Prepare();
    test::ShowActive(sized);
    sized.resize(sized.minimumSizeHint());
    QApplication::processEvents();
    for (const QLabel* label : sized.findChildren<QLabel*>()) {
        if (!label->text().isEmpty()) {
            const int needed = label->wordWrap() ? label->heightForWidth(label->width()) : label->sizeHint().height();
            EXPECT_GE(label->height(), needed) << label->text().toStdString();
            EXPECT_TRUE(label->wordWrap() || label->width() >= label->sizeHint().width())
                << label->text().toStdString();
        }
    }
    for (const auto* button : sized.findChildren<QAbstractButton*>()) {
        EXPECT_GE(button->width(), button->sizeHint().width()) << button->text().toStdString();
    }
    for (const auto* frame : sized.findChildren<TitledFrame*>()) {
        EXPECT_EQ(frame->ShownTitle().count(QChar(0x2026)), 0) << frame->title().toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(Points, FontSize, ::testing::Values(8, 10, 14, 20));

TEST_F(EditorTest, GainsStandInTwoEqualColumnsUnderTheirHeadings)
{
    Open();
    dialog.resize(2 * dialog.size());
    QApplication::processEvents();
    for (const int column : {0, 1}) {
        const QWidget& first = Find(Of("txtGainFigure", 1 + 7 * column));
        EXPECT_EQ(Find(Of("lblBands", 1 + column)).geometry().right(), first.geometry().right());
        for (int row = 1; row < 7; ++row) {
            const QWidget& gain = Find(Of("txtGainFigure", 1 + 7 * column + row));
            EXPECT_EQ(gain.x(), first.x());
            EXPECT_EQ(gain.width(), first.width());
            EXPECT_EQ(gain.y(), Find(Of("txtGainFigure", 1 + 7 * (1 - column) + row)).y());
        }
    }
    EXPECT_LE(std::abs(Find("txtGainFigure(1)").width() - Find("txtGainFigure(8)").width()), 1);
}

TEST_F(EditorTest, StepsStandAboveOneAnotherAndTheStatusBesideClose)
{
    Open();
    const auto top = [this](const char* name) { return Find(name).mapTo(&dialog, QPoint()).y(); };
    EXPECT_LT(top("cboAntennaMakers"), top("cboAntennaModels"));
    EXPECT_LT(top("cboAntennaModels"), top("cmdEdit"));
    EXPECT_LT(top("cmdEdit"), top("lblFileInfo(3)"));
    EXPECT_EQ(top("cmdEdit"), top("cmdSave"));
    for (const int row : {0, 1, 2}) {
        EXPECT_EQ(top(Of("lblFileInfo", row).c_str()), top(Of("lblFileInfo", row + 3).c_str())) << row;
    }
    EXPECT_LT(Find("lblStatus").geometry().right(), Find("cmdClose").geometry().left());
    EXPECT_LT(std::abs(Find("lblStatus").geometry().center().y() - Find("cmdClose").geometry().center().y()), 3);
}

} // namespace
} // namespace quillon::ui
