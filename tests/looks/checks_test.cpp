#include "tests/looks/control_checks.h"
#include "tests/looks/inspection.h"
#include "tests/looks/shown_controls.h"
#include "tests/looks/text_checks.h"
#include "tests/support/shown_window.h"
#include "ui/widgets/quiet_label.h"
#include "ui/widgets/quillon_style.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QStyleFactory>
#include <QStyleOptionButton>
#include <QVBoxLayout>

namespace quillon::test {
namespace {

using ::testing::Contains;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

const QString kText = QStringLiteral("Transmit Frequency");

/// A dialog as it should be, for each test to spoil.
class Checks : public ::testing::Test
{
protected:
    Checks()
    {
        m_style.setParent(&m_dialog);
        QPalette light(QColor(239, 239, 239));
        m_style.polish(light);
        m_dialog.setPalette(light);
        m_dialog.setObjectName(QStringLiteral("Dialog"));
        auto* column = new QVBoxLayout(&m_dialog);
        label.setTextFormat(Qt::PlainText);
        label.setText(kText);
        for (QWidget* part : std::initializer_list<QWidget*>{&label, &box, &check, &button}) {
            part->setStyle(&m_style);
            column->addWidget(part);
        }
        label.setObjectName(QStringLiteral("label"));
        box.setObjectName(QStringLiteral("box"));
        check.setObjectName(QStringLiteral("check"));
        button.setObjectName(QStringLiteral("button"));
        button.setAutoDefault(false); // or it would always look as if it had the keyboard
    }

    ~Checks() override
    {
        for (QWidget* part : std::initializer_list<QWidget*>{&label, &box, &check, &button}) {
            part->setParent(nullptr);
        }
    }

    Findings Found()
    {
        ShowActive(m_dialog);
        return Inspect(m_dialog);
    }

    QDialog& Dialog() { return m_dialog; }

    QLabel label;
    QLineEdit box{QStringLiteral("14.250")};
    QCheckBox check{QStringLiteral("20 Meters")};
    QPushButton button{QStringLiteral("&Close")};

private:
    QDialog m_dialog;
    ui::QuillonStyle m_style{QStyleFactory::create(QStringLiteral("fusion"))};
};

TEST_F(Checks, FindNothingInADialogAsItShouldBe)
{
    EXPECT_THAT(Found(), IsEmpty());
}

TEST_F(Checks, FindALabelOfAFixedHeightThatCutsItsText)
{
    label.setFixedHeight(8);
    EXPECT_THAT(Found(), Contains(HasSubstr("label \"Transmit Frequency\" is cut")));
}

TEST_F(Checks, FindALabelLowerThanItsLineThoughNoLetterIsCut)
{
    label.setFixedHeight(label.fontMetrics().height() - 1);
    EXPECT_THAT(Found(), Contains(HasSubstr("label has no room")));
}

TEST_F(Checks, FindALabelThatIsTooNarrow)
{
    label.setFixedWidth(label.sizeHint().width() - 4);
    EXPECT_THAT(Found(), Contains(HasSubstr("label \"Transmit Frequency\" is cut")));
}

TEST_F(Checks, FindALabelThatMayBecomeTooNarrow)
{
    label.setMinimumWidth(20);
    box.setMinimumWidth(20);
    const Findings found = Found();
    EXPECT_THAT(found, Contains(HasSubstr("is cut")));
    EXPECT_THAT(found, Each(HasSubstr("at its smallest")));
}

TEST_F(Checks, FindTextsOnOneAnother)
{
    ShowActive(Dialog());
    check.move(label.pos());
    const Findings found = CheckPlaces(Record(Dialog()));
    EXPECT_THAT(found, Contains(HasSubstr("overlap")));
    EXPECT_THAT(CheckRoom(Dialog()), Contains("label stands on check"));
}

TEST_F(Checks, FindATextThatIsDrawnOver)
{
    ShowActive(Dialog());
    QWidget cover(&Dialog());
    cover.setAutoFillBackground(true);
    QPalette half = cover.palette();
    half.setColor(QPalette::Window, QColor(0, 0, 0, 64));
    cover.setPalette(half);
    cover.setGeometry(label.geometry());
    cover.show();
    EXPECT_THAT(CheckPlaces(Record(Dialog())), Contains(HasSubstr("is drawn over")));
}

TEST_F(Checks, FindATextThatIsNotDrawnAtAll)
{
    ShowActive(Dialog());
    label.resize(0, 0);
    EXPECT_THAT(CheckNoneMissing(Dialog(), Record(Dialog())),
                Contains(HasSubstr("label \"Transmit Frequency\" is not")));
}

TEST_F(Checks, FindAnElidedTextWhereItShouldBeWhole)
{
    label.setText(QStringLiteral("Transmit Fre…"));
    EXPECT_THAT(Found(), Contains(HasSubstr("is elided")));
}

TEST_F(Checks, FindAColourThatIsHardToRead)
{
    QPalette palette = label.palette();
    palette.setColor(QPalette::WindowText, QColor(120, 120, 120)); // 3.9 to 1
    label.setPalette(palette);
    EXPECT_THAT(Found(), Contains(HasSubstr("label \"Transmit Frequency\" is hard to read: #787878")));
}

TEST_F(Checks, FindASelectedTextThatIsHardToRead)
{
    QPalette palette = box.palette();
    palette.setColor(QPalette::Highlight, QColor(48, 140, 198));
    box.setPalette(palette);
    box.selectAll();
    EXPECT_THAT(Found(), Contains(HasSubstr("box \"14.250\" is hard to read")));
}

TEST_F(Checks, LetADisabledTextBeFaint)
{
    QPalette palette = button.palette();
    palette.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(200, 200, 200));
    button.setPalette(palette);
    button.setEnabled(false);
    EXPECT_THAT(Found(), IsEmpty());
}

TEST_F(Checks, FindADialogThatIsTooTall)
{
    Dialog().setMinimumHeight(Dialog().screen()->availableSize().height() + 1);
    EXPECT_THAT(Found(), Contains(HasSubstr("Dialog is too large for the screen")));
}

TEST_F(Checks, FindAControlThatReachesOutOfItsParent)
{
    ShowActive(Dialog());
    button.move(-3, button.y());
    EXPECT_THAT(CheckRoom(Dialog()), Contains("button reaches out of Dialog"));
}

TEST_F(Checks, FindFaintOutlines)
{
    // The built-in style as it is, in a dark palette.
    QStyle* plain = QStyleFactory::create(QStringLiteral("fusion"));
    plain->setParent(&Dialog());
    QPalette dark(QColor(50, 50, 50));
    for (QWidget* part : std::initializer_list<QWidget*>{&box, &check, &Dialog()}) {
        part->setStyle(plain);
        part->setPalette(dark);
    }
    ShowActive(Dialog());
    const Findings found = CheckShapes(Dialog());
    EXPECT_THAT(found, Contains(HasSubstr("box has an outline that is hard to see")));
    EXPECT_THAT(found, Contains(HasSubstr("check has an outline that is hard to see")));
}

TEST_F(Checks, FindAControlThatDoesNotShowThatItHasTheKeyboard)
{
    class Silent : public QPushButton
    {
    public:
        using QPushButton::QPushButton;

    protected:
        void initStyleOption(QStyleOptionButton* option) const override
        {
            QPushButton::initStyleOption(option);
            option->state &= ~QStyle::State_HasFocus;
            option->features &= ~QStyleOptionButton::DefaultButton;
        }
    };

    Silent silent(QStringLiteral("Silent"), &Dialog());
    silent.setObjectName(QStringLiteral("silent"));
    silent.setAutoDefault(false);
    Dialog().layout()->addWidget(&silent);
    ShowActive(Dialog());
    EXPECT_THAT(CheckFocusMarks(Dialog()), ::testing::ElementsAre("silent hardly shows that it has the keyboard"));
}

} // namespace
} // namespace quillon::test
