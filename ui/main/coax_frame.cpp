#include "ui/main/coax_frame.h"

#include "engine/coax_model.h"
#include "engine/number_text.h"
#include "ui/main/saved_choice.h"
#include "ui/main/system_port.h"
#include "ui/widgets/catalogue_text.h"
#include "ui/widgets/layout_parts.h"
#include "ui/widgets/list_group.h"
#include "ui/widgets/object_names.h"
#include "ui/widgets/spoken.h"
#include "ui/widgets/typed_number.h"

#include <QVBoxLayout>

namespace quillon::ui {

namespace {

constexpr std::size_t kBrandWidth = 15;
constexpr std::size_t kTypeWidth = 20;
const QString kJacketTip = QStringLiteral("Outside diameter of cable jacket measured in inches.");
const QString kImpedanceTip = QStringLiteral("Impedance / Physical length required / electrical wavelength.");

} // namespace

CoaxFrame::CoaxFrame(engine::SystemId system, Workspace& workspace, SystemPort& port, QWidget* parent)
    : InputFrame(QStringLiteral("Choose Brand && Type of System %1 Coax").arg(Number(system)), system, workspace,
                 parent)
    , m_port(port)
    , m_lists(NewLists(ListCount, this))
    , m_line(new ForceLine(2, 2, this))
{
    Name();
    LayOut();
    m_lists[Brand]->SetNext(m_lists[Type]);
    connect(m_lists[Brand], &CatalogueListBox::Chosen, this, [this] { cboCoax_Click(Brand); });
    connect(m_lists[Type], &CatalogueListBox::Chosen, this, [this] { cboCoax_Click(Type); });
}

void CoaxFrame::Name()
{
    setObjectName(SpelledName("FrameSystem%1Coax", System()));
    NameLists(m_lists, SpelledName("cboSystem%1Coax", System()));
    SetSpokenName(*m_lists[Brand], tr("System %1 coax brand").arg(Number(System())));
    SetSpokenName(*m_lists[Type], tr("System %1 coax type").arg(Number(System())));

    m_line->Held(0)->setObjectName(NameFor("lblCoaxBrand", System()));
    m_line->Held(1)->setObjectName(NameFor("lblCoaxType", System()));
    m_line->Fact(0)->setObjectName(IndexedName("lblCoaxSpecs", PairIndex(System(), 0) + 1));
    m_line->Fact(1)->setObjectName(IndexedName("lblCoaxSpecs", PairIndex(System(), 1) + 1));
    m_line->Fact(0)->setToolTip(kJacketTip);
    m_line->Fact(1)->setToolTip(kImpedanceTip);
}

void CoaxFrame::LayOut()
{
    setLayout(ListColumn({tr("Brand"), tr("Type")}, m_lists, m_line));
}

void CoaxFrame::SetMakers(const QList<CatalogueEntry>& makers)
{
    m_lists[Brand]->Refill(makers);
}

void CoaxFrame::ShowRecord()
{
    const std::string brand = Data().CoaxBrand.Trimmed();
    const std::string type = Data().CoaxModel.Trimmed();
    m_line->Held(0)->setText(SectionText(brand));
    m_line->Held(1)->setText(SectionText(type));
    m_line->Fact(0)->clear();
    m_line->Fact(1)->clear();
    m_port.ShowCoaxStatus({});
    m_lists[Type]->ClearMark();
    // Another maker's cable may have the same name, so a type counts only under its own brand.
    if (ChooseSaved(*m_lists[Brand], brand, kBrandWidth)) {
        ChooseSaved(*m_lists[Type], type, kTypeWidth);
    }
}

void CoaxFrame::SetListsEnabled(bool enabled)
{
    EnableLists(m_lists, enabled);
}

void CoaxFrame::SetNext(CatalogueListBox* next)
{
    m_lists[Type]->SetNext(next);
}

QList<QWidget*> CoaxFrame::TabOrder() const
{
    return {m_lists[Brand], m_lists[Type]};
}

void CoaxFrame::cboCoax_Click(int index)
{
    if (index == Brand) {
        BrandChosen();
    } else {
        TypeChosen();
    }
}

void CoaxFrame::BrandChosen()
{
    const QByteArray brand = m_lists[Brand]->ChosenName();
    m_lists[Type]->Empty();
    m_lists[Type]->Fill(SectionEntries(Work().Catalogue().LoadCableTypes(brand.toStdString())));
    Data().CoaxBrand = RecordText(m_lists[Brand]->currentText());
    m_line->Held(0)->setText(m_lists[Brand]->currentText());
    Work().RefreshData(System());
}

void CoaxFrame::TypeChosen()
{
    if (!m_lists[Brand]->HasChoice() || !m_lists[Type]->HasChoice()) {
        return;
    }
    if (!LoadCable()) {
        m_lists[Type]->Mark(NotRead(m_lists[Brand]->ChosenName().toStdString()));
    } else if (Work().Attempt(System(), [this] { TakeCable(); })) {
        m_lists[Type]->ClearMark();
    } else {
        m_lists[Type]->Mark(TooLarge(m_lists[Type]->currentText()));
    }
}

void CoaxFrame::TakeCable()
{
    const QString type = m_lists[Type]->currentText();
    Data().CoaxModel = RecordText(type);
    Data().CoaxType = engine::ToInteger(m_lists[Type]->currentIndex());
    Data().CoaxLoss = engine::CoaxLossOf(Data(), Work().CoaxSpec());
    Data().UseCoaxList = engine::kTrue;
    Work().RefreshData(System());

    m_line->Held(1)->setText(type);
    ShowFigure(0, m_figures.Spec1, tr("%1 in"));
    ShowFigure(1, m_figures.Spec2, tr("%1 Ω"));
    m_port.ShowCoaxStatus(Work().Shortest(Data().CoaxLoss));
}

bool CoaxFrame::LoadCable()
{
    const auto figures = Work().Catalogue().LoadCable(m_lists[Brand]->ChosenName().toStdString(),
                                                      m_lists[Type]->ChosenName().toStdString(), Work().CoaxSpec());
    m_figures = figures.value_or(m_figures);
    return figures.has_value();
}

void CoaxFrame::ShowFigure(int place, std::optional<float> figure, const QString& pattern)
{
    // A jacket of 0 inches is how the catalogue says that a line has none.
    const bool known = figure && *figure > 0;
    m_line->Fact(place)->setText(known ? pattern.arg(Work().Shortest(*figure)) : QString());
}

} // namespace quillon::ui
