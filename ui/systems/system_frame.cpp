#include "ui/systems/system_frame.h"

#include "store/code_page.h"
#include "ui/widgets/looks.h"
#include "ui/widgets/object_names.h"
#include "ui/widgets/quiet_label.h"
#include "ui/widgets/scrolled_window.h"

#include <QVBoxLayout>

namespace quillon::ui {

namespace {

constexpr int kCharacters = 36;
/// What frames and margins take of a dialog beside each label, in base units.
constexpr int kAround = 10;

/// Label with room for a line of usual length; a longer one is elided, so that no dialog changes its width with what it
/// shows.
class LineLabel : public QuietLabel
{
public:
    explicit LineLabel(QWidget* parent)
        : QuietLabel(Tone::Normal, 1.0, parent)
    {
        SetElides(true);
    }

    [[nodiscard]] QSize sizeHint() const override
    {
        return {kCharacters * fontMetrics().averageCharWidth(), QuietLabel::sizeHint().height()};
    }

    /// Less only where the screen has no room for two of them beside each other.
    [[nodiscard]] QSize minimumSizeHint() const override
    {
        const int most = RoomFor(*window()).width() / 2 - kAround * BaseUnit();
        return sizeHint().boundedTo({most, sizeHint().height()});
    }
};

QString Line(std::string_view brand, std::string_view model)
{
    return ShownText(brand) + QStringLiteral(" - ") + ShownText(model);
}

} // namespace

QString ShownText(std::string_view bytes)
{
    return QString::fromStdString(store::ToUtf8(bytes));
}

SystemFrame::SystemFrame(engine::SystemId system, const QString& lines, QWidget* parent)
    : TitledFrame(SpelledName(QStringLiteral("Antenna System %1"), system), parent)
    , m_antenna(new LineLabel(this))
    , m_coax(new LineLabel(this))
{
    setObjectName(SpelledName(QStringLiteral("FrameSystem%1"), system));
    m_antenna->setObjectName(IndexedName(lines, PairIndex(system, 0)));
    m_coax->setObjectName(IndexedName(lines, PairIndex(system, 1)));

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(BaseUnit());
    column->addWidget(m_antenna);
    column->addWidget(m_coax);
}

void SystemFrame::Show(const store::SystemNames& names)
{
    m_antenna->setText(Line(names.antennaBrand, names.antennaModel));
    m_coax->setText(Line(names.coaxBrand, names.coaxModel));
}

void SystemFrame::Clear()
{
    m_antenna->clear();
    m_coax->clear();
}

} // namespace quillon::ui
