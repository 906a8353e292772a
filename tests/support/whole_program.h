#pragma once

#include "app/dialogs.h"
#include "engine/records.h"
#include "store/catalogue.h"
#include "store/profile_store.h"
#include "store/program_folder.h"
#include "tests/support/recording_hooks.h"
#include "tests/support/recording_shell.h"
#include "tests/support/temp_folder.h"
#include "tests/ui/report/fake_printers.h"
#include "ui/main/quillon_window.h"
#include "ui/platform/message_notifier.h"

#include <memory>

namespace quillon::support {

/// The program behind the splash with all its dialogs and messages, over an empty folder of its own; printers and other
/// programs are not touched. Its catalogues are to be put there before the window is loaded.
struct WholeProgram
{
    WholeProgram() { notifier.SetOwner(&window); }

    TempFolder files;
    store::ProgramFolder folder{(files / "Quillon").string()};
    engine::AntennaSystems systems;
    RecordingHooks hooks;
    ui::MessageNotifier notifier;
    std::shared_ptr<store::ProfileStore> store = std::make_shared<store::ProfileStore>();
    store::Catalogue catalogue{folder, store};
    test::FakePrinters printers;
    RecordingShell shell;
    ui::Quillon window{{systems, hooks, notifier, catalogue}};
    Dialogs dialogs{{window, folder, catalogue, *store, notifier, printers, shell}};
};

} // namespace quillon::support
