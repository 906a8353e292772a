#pragma once

#include "ui/main/force_line.h"
#include "ui/main/input_frame.h"
#include "ui/widgets/catalogue_list_box.h"

namespace quillon::ui {

class SystemPort;

/// Choice of one system's antenna: brand, model and band.
class AntennaFrame : public InputFrame
{
    Q_OBJECT

public:
    enum List { Brand, Model, Band, ListCount };

    AntennaFrame(engine::SystemId system, Workspace& workspace, SystemPort& port, QWidget* parent = nullptr);

    /// Fills the brand list, keeping what is chosen.
    void SetMakers(const QList<CatalogueEntry>& makers);
    /// Adds a maker's models to the model list.
    void LoadAntennas(const QByteArray& maker);
    /// Adds a model's bands to the band list.
    void LoadAntennaGain(const QByteArray& maker, const QByteArray& model);
    /// Follows a change of a maker's file: the lists below the brand are filled anew, and a new gain of the
    /// chosen band is taken over. Without effect while another maker is chosen.
    void Reload(const QByteArray& maker);
    void cboAntenna_Click(int index);
    /// Chooses the record's brand, model and band in the lists. What a list does not have stays as the record holds it.
    void ShowRecord();
    void SetListsEnabled(bool enabled);

    [[nodiscard]] CatalogueListBox* FirstList() const { return m_lists[Brand]; }

    [[nodiscard]] QList<QWidget*> TabOrder() const;

private:
    void Name();
    void LayOut();
    void BrandChosen();
    void ModelChosen();
    void BandChosen();
    void TakeBand(const store::ModelSection& model);
    /// What the file says of the chosen model; nothing, and the band list is marked, when it could not be read.
    [[nodiscard]] std::optional<store::ModelSection> ReadModel();
    /// Takes the chosen band's gain over when the catalogue has changed it.
    void FollowGain();
    /// Writes a gain into the record. @param dBd  as GainToDBd gives it
    void TakeGain(float dBd, const std::string& gainType);
    /// Takes the record's own gain into force, for a frequency that is no band's working frequency.
    void TakeRecordGain();
    void ShowGain();
    [[nodiscard]] float GainOfBand() const;

    SystemPort& m_port;
    QList<CatalogueListBox*> m_lists;
    ForceLine* m_line;
    float m_listGain = 0; ///< dBd, as last taken from the lists
};

} // namespace quillon::ui
