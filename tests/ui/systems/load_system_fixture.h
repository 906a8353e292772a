#pragma once

#include "tests/support/find_widget.h"
#include "tests/support/sample_pair.h"
#include "tests/support/shown_window.h"
#include "tests/ui/systems/systems_fixture.h"
#include "ui/systems/load_system.h"

#include <QAbstractButton>
#include <QComboBox>

#include <string>

namespace quillon::ui {

inline const std::string kTwoPairs =
    "[SavedSystems]\nSystem:1=Home\nSystem:2=Field Day\nSystem:3=\nSystem:4=Behind\n[Home]\n" +
    support::SampleEntries("\n") +
    "[Field Day]\nSystem1AntennaBrand=M\xFChle\nSystem1AntennaGain=1\nSystem1CoaxType=0\n"
    "System1CoaxLoss=2\nSystem1CoaxLength=30\nSystem2AntennaGain=-2.5\nSystem2CoaxType=1\n"
    "System2CoaxLoss=0\nSystem2CoaxLength=0\n";

/// Records that no file holds: whatever is read must replace all of them.
inline engine::AntennaSystems OtherRecords()
{
    engine::AntennaSystems systems;
    for (const engine::SystemId system : engine::kBothSystems) {
        engine::SystemData& data = systems.Data[system];
        data.AntennaBrand = "other";
        data.GainType = "dBi";
        data.UseAntennaList = engine::kTrue;
        data.UseCoaxList = engine::kTrue;
        data.ConnectorLoss = 1;
        data.XmitPower = 7;
        systems.Results[system] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11};
        systems.State[system].SetFlag(engine::kSavedFlag, engine::kTrue);
    }
    return systems;
}

/// The dialog over records that nothing has been read into yet.
class LoadSystemTest : public SystemsTest
{
protected:
    void SetUp() override { window.Systems() = OtherRecords(); }

    void Open(const std::string& bytes)
    {
        Put(bytes);
        dialog.Prepare();
        test::ShowActive(dialog);
    }

    QComboBox& List() { return test::Find<QComboBox>(dialog, QStringLiteral("cboSavedSystems")); }

    std::string Entries()
    {
        QStringList entries;
        for (int place = 0; place < List().count(); ++place) {
            entries.append(List().itemText(place));
        }
        return entries.join(u'|').toStdString();
    }

    bool IsEnabled(const char* button)
    {
        return test::Find<QAbstractButton>(dialog, QString::fromUtf8(button)).isEnabled();
    }

    /// Whether the records stand as they did before anything was read.
    bool RecordsAreUntouched()
    {
        const engine::AntennaSystems before = OtherRecords();
        return window.Systems().Data == before.Data && window.Systems().Results == before.Results;
    }

    /// What reading kTwoPairs' "Field Day" must give.
    static store::SystemPair FieldDay()
    {
        store::SystemPair pair{store::ResetSystem(), store::ResetSystem()};
        pair[engine::SystemId::One].AntennaBrand = "M\xFChle";
        pair[engine::SystemId::One].AntennaGain = 1;
        pair[engine::SystemId::One].CoaxLoss = 2;
        pair[engine::SystemId::One].CoaxLength = 30;
        pair[engine::SystemId::Two].AntennaGain = -2.5F;
        pair[engine::SystemId::Two].CoaxType = 1;
        pair[engine::SystemId::Two].CoaxLength = 0;
        return pair;
    }

    LoadSystem dialog{window, readWrite, store, notifier};
};

} // namespace quillon::ui
