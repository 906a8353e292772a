#pragma once

#include "engine/notifier.h"
#include "store/antenna_files.h"
#include "store/catalogue.h"
#include "ui/editor/editor_clock.h"
#include "ui/platform/main_window_port.h"

#include <QDialog>

#include <string>

class QPushButton;

namespace quillon::ui {

class CatalogueListBox;
class FieldsFrame;
class SelectionFrame;
class StatusLine;

/// Manages the antenna catalogue: adds makers and models, and sets the bands and gains of a model. One object serves
/// all openings.
///
/// A maker or model is chosen in the lists, which show what the files hold. Every command works on what is chosen, goes
/// to the files through AntennaFiles, and then has both the main window and the lists here follow.
class EditAntennas : public QDialog
{
    Q_OBJECT

public:
    /// @param store  the one that the catalogue reads through. All but the parent must outlive this object.
    EditAntennas(MainWindowPort& window, const store::Catalogue& catalogue, store::ProgramFolder folder,
                 store::ProfileStore& store, engine::Notifier& notifier, QWidget* parent = nullptr,
                 EditorClock clock = {});

    /// Prepares the dialog and shows it until it is closed.
    void Open();

    /// The opening steps, from the designed state: lists the makers and chooses none.
    void Prepare();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void cboAntennaMakers_Click();
    void cboAntennaModels_Click();
    void cmdAddNewBrand_Click();
    void cmdAddNewModel_Click();
    void txtAntennaBrand_Enter();
    void txtAntennaModel_Enter();
    void cmdEdit_Click();
    void cmdSave_Click();

    void LayOut();
    void Wire();

    /// Bytes of the chosen maker and model, as in the catalogue; empty when none is chosen.
    [[nodiscard]] std::string Maker() const;
    [[nodiscard]] std::string Model() const;

    void LoadMakers();
    void LoadModels();
    /// Shows the chosen model, locked. One that cannot be read is not shown and cannot be edited, and the user is told.
    void ShowModel();
    void ShowFileInfo();
    void SetEditing(bool editing);
    /// Brings the index up to date with the chosen maker's file. @return false, and the user is told, when it fails
    bool UpdateIndex();
    void Tell(const QString& text);

    MainWindowPort& m_window;
    const store::Catalogue& m_catalogue;
    store::AntennaFiles m_files;
    engine::Notifier& m_notifier;
    EditorClock m_clock;
    SelectionFrame* m_selection;
    FieldsFrame* m_fields;
    StatusLine* m_status;
    QPushButton* m_close;
};

} // namespace quillon::ui
