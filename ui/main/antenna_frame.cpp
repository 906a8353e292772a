#include "ui/main/antenna_frame.h"

#include "engine/arithmetic_error.h"
#include "engine/bands.h"
#include "engine/mask.h"
#include "engine/number_text.h"
#include "ui/main/saved_choice.h"
#include "ui/main/system_port.h"
#include "ui/widgets/catalogue_text.h"
#include "ui/widgets/list_group.h"
#include "ui/widgets/object_names.h"
#include "ui/widgets/spoken.h"
#include "ui/widgets/typed_number.h"

#include <QVBoxLayout>

#include <algorithm>

namespace quillon::ui {

namespace {

constexpr std::string_view kBandFrequencyMask = "###0.000";
constexpr std::string_view kRecordFrequencyMask = "##0.000";
constexpr qsizetype kModelCharacters = 16;
constexpr std::size_t kBrandWidth = 25;

QString FrameName(engine::SystemId system)
{
    return system == engine::SystemId::One ? QStringLiteral("FrameSystemOneAntenna")
                                           : QStringLiteral("FrameSystemTwoAnt");
}

/// The band whose working frequency reads the same as a record's, to the kilohertz; empty when there is none.
QString BandOfFrequency(float megahertz)
{
    const std::string text = engine::FormatWithMask(megahertz, kRecordFrequencyMask);
    for (int position = 0; position < engine::kBandCount; ++position) {
        if (engine::FormatWithMask(engine::BandFrequency(position).frequency, kRecordFrequencyMask) == text) {
            const std::string_view name = engine::BandNames().at(static_cast<std::size_t>(position));
            return QString::fromLatin1(name.data(), static_cast<qsizetype>(name.size()));
        }
    }
    return {};
}

} // namespace

AntennaFrame::AntennaFrame(engine::SystemId system, Workspace& workspace, SystemPort& port, QWidget* parent)
    : InputFrame(QStringLiteral("Choose Brand && Model of System %1 Antenna").arg(Number(system)), system, workspace,
                 parent)
    , m_port(port)
    , m_lists(NewLists(ListCount, this))
    , m_line(new ForceLine(2, 1, this))
{
    Name();
    LayOut();
    m_lists[Brand]->SetNext(m_lists[Model]);
    m_lists[Model]->SetNext(m_lists[Band]);
    connect(m_lists[Brand], &CatalogueListBox::Chosen, this, [this] { cboAntenna_Click(Brand); });
    connect(m_lists[Model], &CatalogueListBox::Chosen, this, [this] { cboAntenna_Click(Model); });
    connect(m_lists[Band], &CatalogueListBox::Chosen, this, [this] { cboAntenna_Click(Band); });
}

void AntennaFrame::Name()
{
    setObjectName(FrameName(System()));
    NameLists(m_lists, SpelledName("cboSystem%1Antenna", System()));
    SetSpokenName(*m_lists[Brand], tr("System %1 antenna brand").arg(Number(System())));
    SetSpokenName(*m_lists[Model], tr("System %1 antenna model").arg(Number(System())));
    SetSpokenName(*m_lists[Band], tr("System %1 antenna band").arg(Number(System())));

    m_line->Held(0)->setObjectName(NameFor("lblAntennaBrand", System()));
    m_line->Held(1)->setObjectName(NameFor("lblAntennaModel", System()));
    m_line->Fact(0)->setObjectName(NameFor("lblAntennaBand", System()));
}

void AntennaFrame::LayOut()
{
    setLayout(ListColumn({tr("Brand"), tr("Model"), tr("Band")}, m_lists, m_line));
}

void AntennaFrame::SetMakers(const QList<CatalogueEntry>& makers)
{
    m_lists[Brand]->Refill(makers);
}

void AntennaFrame::LoadAntennas(const QByteArray& maker)
{
    m_lists[Model]->Fill(SectionEntries(Work().Catalogue().LoadAntennas(maker.toStdString())));
}

void AntennaFrame::LoadAntennaGain(const QByteArray& maker, const QByteArray& model)
{
    const store::Catalogue& catalogue = Work().Catalogue();
    m_lists[Band]->Fill(
        SectionEntries(catalogue.LoadAntennaGain(maker.toStdString(), model.toStdString(), Work().Bands())));
}

void AntennaFrame::Reload(const QByteArray& maker)
{
    if (!m_lists[Brand]->HasChoice() || m_lists[Brand]->ChosenName() != maker) {
        return;
    }
    m_lists[Model]->Refill(SectionEntries(Work().Catalogue().LoadAntennas(maker.toStdString())));
    const QByteArray model = m_lists[Model]->ChosenName();
    const bool hadBand = m_lists[Band]->HasChoice();
    m_lists[Band]->Refill(
        SectionEntries(Work().Catalogue().LoadAntennaGain(maker.toStdString(), model.toStdString(), Work().Bands())));
    // While the lists are out of use, a typed gain is in force: it is the user's, and stays.
    if (m_lists[Band]->HasChoice() && m_lists[Band]->isEnabledTo(this)) {
        FollowGain();
    } else if (hadBand && !m_lists[Band]->HasChoice()) {
        m_port.SetFrequencyFollowsBand(false);
    }
}

void AntennaFrame::SetListsEnabled(bool enabled)
{
    EnableLists(m_lists, enabled);
}

QList<QWidget*> AntennaFrame::TabOrder() const
{
    return {m_lists[Brand], m_lists[Model], m_lists[Band]};
}

void AntennaFrame::cboAntenna_Click(int index)
{
    switch (index) {
    case Brand:
        return BrandChosen();
    case Model:
        return ModelChosen();
    default:
        return BandChosen();
    }
}

void AntennaFrame::BrandChosen()
{
    m_lists[Model]->Empty();
    LoadAntennas(m_lists[Brand]->ChosenName());
    Data().AntennaBrand = RecordText(m_lists[Brand]->currentText());
    m_line->Held(0)->setText(m_lists[Brand]->currentText());
    m_port.SetFrequencyFollowsBand(false);
    Work().RefreshData(System());
}

void AntennaFrame::ModelChosen()
{
    m_lists[Band]->Empty();
    LoadAntennaGain(m_lists[Brand]->ChosenName(), m_lists[Model]->ChosenName());
    Data().AntennaModel = RecordText(m_lists[Model]->currentText().left(kModelCharacters));
    m_line->Held(1)->setText(SectionText(Data().AntennaModel.Trimmed()));
    Work().RefreshData(System());
}

void AntennaFrame::BandChosen()
{
    if (!m_lists[Brand]->HasChoice() || !m_lists[Model]->HasChoice() || !m_lists[Band]->HasChoice()) {
        return;
    }
    const std::optional<store::ModelSection> model = ReadModel();
    if (!model) {
        return;
    }
    if (Work().Attempt(System(), [&] { TakeBand(*model); })) {
        m_lists[Band]->ClearMark();
    } else {
        m_lists[Band]->Mark(TooLarge(m_lists[Band]->currentText()));
        m_port.ShowFrequency(Data().Frequency, kBandFrequencyMask);
    }
}

std::optional<store::ModelSection> AntennaFrame::ReadModel()
{
    const std::string maker = m_lists[Brand]->ChosenName().toStdString();
    auto model = Work().Catalogue().LoadModel(maker, m_lists[Model]->ChosenName().toStdString());
    if (!model) {
        m_lists[Band]->Mark(NotRead(maker));
    }
    return model;
}

void AntennaFrame::TakeBand(const store::ModelSection& model)
{
    Work().Bands() = model.bands;
    Data().UseAntennaList = engine::kTrue;
    TakeGain(engine::GainToDBd(GainOfBand(), model.gainType), model.gainType);

    Data().Frequency =
        engine::RoundWithMask(engine::FrequencyForBand(m_lists[Band]->ChosenName().toStdString()), kBandFrequencyMask);
    if (!m_port.ShowFrequency(Data().Frequency, kBandFrequencyMask)) {
        throw engine::ArithmeticError("the antenna's gain cannot be computed with");
    }
    if (Data().UseCoaxList != engine::kFalse) {
        m_port.RunCoaxTypeAgain();
    }
    m_port.SetFrequencyFollowsBand(true);
    Work().RefreshData(System());

    ShowGain();
}

void AntennaFrame::TakeGain(float dBd, const std::string& gainType)
{
    m_listGain = dBd;
    Data().GainType = gainType;
    Data().AntennaGain = dBd;
    Work().Results(System()).AntennaGainDBd = dBd;
}

void AntennaFrame::FollowGain()
{
    if (Data().AntennaGain != m_listGain) {
        return; // a gain that was typed since is the user's
    }
    const std::optional<store::ModelSection> model = ReadModel();
    if (!model) {
        return;
    }
    Work().Bands() = model->bands;
    const float dBd = engine::GainToDBd(GainOfBand(), model->gainType);
    if (dBd == m_listGain && model->gainType == Data().GainType) {
        m_lists[Band]->ClearMark(); // in force as it is, which asks for no computation
        return;
    }
    const auto follow = [&] {
        TakeGain(dBd, model->gainType);
        Work().RefreshData(System());
        ShowGain();
    };
    if (Work().Attempt(System(), follow)) {
        m_lists[Band]->ClearMark();
    } else {
        m_listGain = Data().AntennaGain; // put back with the record, which goes on to follow
        m_lists[Band]->Mark(TooLarge(m_lists[Band]->currentText()));
    }
}

void AntennaFrame::ShowGain()
{
    const QString gain = Work().Shortest(Data().AntennaGain);
    m_line->Fact(0)->setText(QStringLiteral("Gain = %1 dbd").arg(gain));
    m_port.ShowAntennaStatus(QStringLiteral("%1 Antenna").arg(gain));
}

void AntennaFrame::ShowRecord()
{
    const engine::SystemData saved = Data();
    m_line->Held(0)->setText(SectionText(saved.AntennaBrand.Trimmed()));
    m_line->Held(1)->setText(SectionText(saved.AntennaModel.Trimmed()));
    m_line->Fact(0)->clear();
    m_port.ShowAntennaStatus({});
    m_lists[Band]->ClearMark();
    m_port.SetFrequencyFollowsBand(false);
    if (!ChooseSaved(*m_lists[Brand], saved.AntennaBrand.Trimmed(), kBrandWidth) ||
        !ChooseSaved(*m_lists[Model], saved.AntennaModel.Trimmed(), kModelCharacters)) {
        return;
    }
    const int band = m_lists[Band]->findText(BandOfFrequency(saved.Frequency), Qt::MatchFixedString);
    m_lists[Band]->Choose(band);
    if (band < 0 || m_lists[Band]->IsMarked()) {
        TakeRecordGain();
    }
}

void AntennaFrame::TakeRecordGain()
{
    Data().UseAntennaList = engine::kTrue;
    Work().Results(System()).AntennaGainDBd = Data().AntennaGain;
    ShowGain();
}

float AntennaFrame::GainOfBand() const
{
    const std::string band = m_lists[Band]->ChosenName().toStdString();
    const auto* const suffix = std::ranges::find_if(
        store::kBandSuffixes, [&](std::string_view name) { return std::string(name) + " Meters" == band; });
    if (suffix == store::kBandSuffixes.end()) {
        return 0;
    }
    const auto column = static_cast<std::size_t>(suffix - store::kBandSuffixes.begin());
    return engine::NumberFromText(Work().Bands().at(column).gain);
}

} // namespace quillon::ui
