#pragma once

#include "engine/notifier.h"
#include "store/saved_systems.h"
#include "ui/platform/main_window_port.h"
#include "ui/systems/pair_dialog.h"

#include <string>
#include <vector>

namespace quillon::ui {

class NameListBox;

/// Puts a saved pair of systems back into the main window. One object serves all openings.
class LoadSystem : public PairDialog
{
    Q_OBJECT

public:
    /// All but the parent must outlive this object.
    LoadSystem(MainWindowPort& window, store::ReadWrite& readWrite, store::ProfileStore& store,
               engine::Notifier& notifier, QWidget* parent = nullptr);

    /// Prepares the dialog and shows it until it is closed.
    void Open();

    /// The opening steps, from the designed state: lists the saved systems and shows the first one, without touching
    /// the records.
    void Prepare();

private:
    void cboSavedSystems_Click();
    void cmdLoad_Click();

    void RestoreDesign();
    void ShowNames(const engine::PerSystem<store::SystemNames>& names);
    /// Reads the selected pair into the records; a damaged one is told to the user and leaves them as they are.
    bool ReadSelected();

    MainWindowPort& m_window;
    store::SavedSystems m_saved;
    engine::Notifier& m_notifier;
    NameListBox* m_list;
    QPushButton* m_load;
    QPushButton* m_cancel;
    std::vector<std::string> m_names; ///< of the list's entries, as they stand in the file
};

} // namespace quillon::ui
