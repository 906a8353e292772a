#pragma once

#include "store/antenna_files.h"
#include "ui/widgets/titled_frame.h"

#include <array>
#include <string_view>
#include <variant>

class QButtonGroup;

namespace quillon::ui {

class BandBox;
class GainBox;

/// What the antenna editor knows of one model: which bands it covers, its gain on each, and their unit. Locked at
/// first: it shows, and takes nothing.
class FieldsFrame : public TitledFrame
{
    Q_OBJECT

public:
    explicit FieldsFrame(QWidget* parent);

    /// Empties all gain boxes and band boxes and chooses no unit.
    void Clear();
    /// Fills the fields from the model loaded last.
    void ShowModel(const store::BandTable& bands, std::string_view gainType);
    void SetEditable(bool editable);

    /// Why a model cannot be saved, in words, and the box that is to blame.
    struct Fault
    {
        QString text;
        QWidget* box;
    };

    /// What the fields say, for the file.
    /// @return the first gain of a covered band that is no number or too large, instead.
    [[nodiscard]] std::variant<store::ModelFigures, Fault> Figures() const;

    /// All fields in the order of the Tab key.
    [[nodiscard]] QList<QWidget*> TabOrder() const;

signals:
    /// A band is no longer wanted: what comes next is saving.
    void BandRemoved();

private:
    struct Band
    {
        BandBox* covered;
        GainBox* gain;
    };

    void Name();
    void LayOut();
    void chkBands_MouseUp(std::size_t place);

    std::array<Band, store::kBandSuffixes.size()> m_bands{};
    QButtonGroup* m_gainType;
};

} // namespace quillon::ui
