#include "tests/reliability/monkey_shown.h"

#include "engine/mask.h"
#include "engine/number_text.h"
#include "tests/support/find_widget.h"
#include "ui/widgets/catalogue_text.h"
#include "ui/widgets/number_box.h"
#include "ui/widgets/object_names.h"

#include <QLabel>

#include <array>
#include <utility>

namespace quillon::test {

namespace {

using engine::SystemData;
using engine::SystemId;
using engine::SystemResults;

/// A result label by the place of System One's in its array, with its record's field and its mask.
struct ResultLabel
{
    const char* name;
    int firstIndex;
    float SystemResults::*field;
    const char* mask;
};

constexpr std::array kResults{
    ResultLabel{"lblERP", 1, &SystemResults::ERP, "#####0.00"},
    ResultLabel{"lblSystemGain", 1, &SystemResults::SystemGain, ""},
    ResultLabel{"lblCoaxDBLoss", 1, &SystemResults::CoaxDBLoss, "##0.00"},
    ResultLabel{"lblCoaxPowerLoss", 1, &SystemResults::CoaxPowerLoss, "####0.00"},
    ResultLabel{"lblVSWRReturnLoss", 3, &SystemResults::VSWRPowerLoss, "####0.00"},
    ResultLabel{"lblVSWRReturnLoss", 1, &SystemResults::VSWRAttenuation, "0.0000"},
    ResultLabel{"lblFeedPointPower", 1, &SystemResults::FeedPointPower, "####0.00"},
    ResultLabel{"lblAntennaWGain", 1, &SystemResults::AntennaPowerGain, "####0.00"},
};

template <std::size_t Width>
bool Holds(const engine::FixedText<Width>& record, const QString& shown)
{
    engine::FixedText<Width> fitted;
    fitted = ui::RecordText(shown);
    return fitted.Trimmed() == record.Trimmed();
}

} // namespace

ShownFigures::ShownFigures(const QWidget& window, const engine::AntennaSystems& systems, QChar separator)
    : m_systems(systems)
    , m_separator(separator)
{
    for (const SystemId system : engine::kBothSystems) {
        AddResults(window, system);
        AddBoxes(window, system);
        AddLines(window, system);
    }
    AddTypedFigures(window);
}

QString ShownFigures::Masked(float value, const char* mask) const
{
    const std::string separator = QString(m_separator).toStdString();
    return QString::fromStdString(*mask == '\0' ? engine::PlainText(value, separator)
                                                : engine::FormatWithMask(value, mask, separator));
}

std::optional<float> ShownFigures::Number(QString text) const
{
    bool isNumber = false;
    const float number = text.replace(m_separator, u'.').toFloat(&isNumber);
    return isNumber ? std::optional(number) : std::nullopt;
}

void ShownFigures::AddResults(const QWidget& window, SystemId system)
{
    const auto add = [&](const QString& name, const std::function<float()>& held, const char* mask) {
        Item item;
        item.name = name.toStdString();
        item.shown = [label = &Find<QLabel>(window, name)] { return label->text(); };
        item.agrees = [this, held, mask](const QString& text) { return text == Masked(held(), mask); };
        m_items.push_back(std::move(item));
    };
    for (const ResultLabel& label : kResults) {
        add(
            ui::IndexedName(QString::fromLatin1(label.name), label.firstIndex + engine::Number(system) - 1),
            [this, system, field = label.field] { return m_systems.Results[system].*field; }, label.mask);
    }
    add(
        ui::NameFor(QStringLiteral("lblAntennaGain"), system),
        [this, system] { return m_systems.Data[system].AntennaGain; }, "#0.00");
}

ShownFigures::Item ShownFigures::Box(const QWidget& window, const QString& name, std::function<float()> held,
                                     const char* mask) const
{
    auto* box = &Find<ui::NumberBox>(window, name);
    Item item;
    item.name = name.toStdString();
    item.shown = [box] { return box->text(); };
    item.held = std::move(held);
    item.isRefused = [box] { return box->IsMarked(); };
    item.agrees = [this, value = item.held](const QString& text) {
        return text.isEmpty() || Number(text) == std::optional(value());
    };
    if (mask != nullptr) {
        item.isShort = [this, value = item.held, mask](const QString& text) { return text == Masked(value(), mask); };
    }
    return item;
}

void ShownFigures::AddBoxes(const QWidget& window, SystemId system)
{
    const auto add = [&](const QString& name, float SystemData::*field, const char* mask) {
        m_items.push_back(Box(
            window, name, [this, system, field] { return m_systems.Data[system].*field; }, mask));
    };
    add(ui::NameFor(QStringLiteral("txtOutputPower"), system), &SystemData::XmitPower, "####0");
    add(ui::NameFor(QStringLiteral("txtFrequency"), system), &SystemData::Frequency, "##0.000");
    add(ui::SpelledName(QStringLiteral("txtSystem%1CoaxLength"), system), &SystemData::CoaxLength, "0.0");
    add(ui::NameFor(QStringLiteral("txtVSWR"), system), &SystemData::VSWR, "0.0");
    m_items.push_back(Box(
        window, ui::SpelledName(QStringLiteral("txtSystem%1NumConnectors"), system),
        [this, system] { return static_cast<float>(m_systems.Data[system].Connectors); }, nullptr));
    // Typed as a whole number, halves to even.
    m_items.back().agrees = [this, system](const QString& text) {
        const auto number = Number(text);
        return text.isEmpty() || (number && engine::ToInteger(*number) == m_systems.Data[system].Connectors);
    };
}

void ShownFigures::AddLines(const QWidget& window, SystemId system)
{
    const auto add = [&](const char* name, std::function<bool(const QString&, const SystemData&)> agrees) {
        const QString label = ui::NameFor(QString::fromLatin1(name), system);
        Item item;
        item.name = label.toStdString();
        item.shown = [shown = &Find<QLabel>(window, label)] { return shown->text(); };
        item.agrees = [this, system, agreement = std::move(agrees)](const QString& text) {
            return agreement(text, m_systems.Data[system]);
        };
        m_items.push_back(std::move(item));
    };
    add("lblAntennaBrand", [](const QString& text, const SystemData& data) { return Holds(data.AntennaBrand, text); });
    add("lblAntennaModel", [](const QString& text, const SystemData& data) { return Holds(data.AntennaModel, text); });
    add("lblCoaxBrand", [](const QString& text, const SystemData& data) { return Holds(data.CoaxBrand, text); });
    add("lblCoaxType", [](const QString& text, const SystemData& data) { return Holds(data.CoaxModel, text); });
    const auto* typing = &Find<QWidget>(window, QStringLiteral("FrameAntennaGain"));
    add("lblAntennaBand", [this, system, typing](const QString& text, const SystemData& data) {
        const std::string gain = engine::ShortestText(data.AntennaGain, QString(m_separator).toStdString());
        // A gain that is typed is not told here.
        const bool isTyped = system == SystemId::One && !typing->isHidden();
        return text.isEmpty() || isTyped || text == QStringLiteral("Gain = %1 dbd").arg(QString::fromStdString(gain));
    });
}

void ShownFigures::AddTypedFigures(const QWidget& window)
{
    m_items.push_back(Box(
        window, QStringLiteral("txtCoaxLoss"), [this] { return m_systems.Data[SystemId::One].CoaxLoss; }, nullptr));
    m_items.back().agrees = [this](const QString& text) {
        return text.isEmpty() || text == m_separator || text == u'.' ||
               Number(text) == std::optional(m_systems.Data[SystemId::One].CoaxLoss);
    };
    m_items.back().onlyWhenChanged = true;
    m_items.push_back(Box(
        window, QStringLiteral("txtAntennaGain"), [this] { return m_systems.Data[SystemId::One].AntennaGain; },
        nullptr));
    m_items.back().onlyWhenChanged = true;
}

std::optional<std::string> ShownFigures::Check(Item& item, bool loading, bool several) const
{
    const QString text = item.shown();
    const bool isChanged = text != item.text;
    const bool isRefused = item.isRefused && item.isRefused();
    bool agrees = false;
    if (isRefused) {
        // A text that is refused leaves the record alone.
        agrees = !isChanged || loading || several || item.held() == item.heldBefore;
    } else {
        agrees = (item.onlyWhenChanged && !isChanged) || item.agrees(text);
    }
    if (agrees) {
        item.excused.reset();
    } else if (loading && (!isChanged || (item.isShort && item.isShort(text)))) {
        item.excused = text;
    }
    const QString before = std::exchange(item.text, text);
    item.heldBefore = item.held ? item.held() : 0;
    if (agrees || item.excused == text) {
        return std::nullopt;
    }
    return item.name + " shows \"" + text.toStdString() + "\"" + (isRefused ? ", refused," : "") +
           " and the record says another thing" +
           (item.held ? " (" + std::to_string(item.held()) + ")" : std::string()) +
           (loading ? " while a pair is loaded" : "") + ", before: \"" + before.toStdString() + "\"";
}

std::optional<std::string> ShownFigures::Check(bool loading, bool several)
{
    const bool isSame = m_systems.Data == m_data && m_systems.Results == m_results;
    for (Item& item : m_items) {
        if (isSame && item.shown() == item.text && !loading) {
            continue;
        }
        if (auto wrong = Check(item, loading, several)) {
            return wrong;
        }
    }
    m_data = m_systems.Data;
    m_results = m_systems.Results;
    return std::nullopt;
}

} // namespace quillon::test
