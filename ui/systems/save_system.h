#pragma once

#include "engine/notifier.h"
#include "store/saved_systems.h"
#include "ui/platform/main_window_port.h"
#include "ui/systems/pair_dialog.h"

class QLineEdit;

namespace quillon::ui {

/// Saves both systems of the main window under a name. One object serves all openings.
class SaveSystem : public PairDialog
{
    Q_OBJECT

public:
    /// All but the parent must outlive this object.
    SaveSystem(MainWindowPort& window, store::ReadWrite& readWrite, store::ProfileStore& store,
               engine::Notifier& notifier, QWidget* parent = nullptr);

    /// Prepares the dialog and shows it until it is closed.
    void Open();

    /// Prepares the dialog and shows it beside the main window, which stays usable meanwhile.
    void OpenBeside();

    /// The opening steps, from the designed state: shows what is to be saved and proposes a name. Tells the user when
    /// there is nothing to save, or nowhere to save it to.
    void Prepare();

protected:
    bool event(QEvent* event) override;

private:
    void cmdSave_Click();

    void RestoreDesign();
    void ShowSystems();
    void KeepFromSaving();
    void Save(const std::string& name);

    MainWindowPort& m_window;
    store::SavedSystems m_saved;
    engine::Notifier& m_notifier;
    QLineEdit* m_name;
    QPushButton* m_save;
    QPushButton* m_cancel;
};

} // namespace quillon::ui
