#pragma once

#include "engine/records.h"
#include "store/catalogue.h"
#include "tests/store/failing_calls.h"
#include "tests/support/find_widget.h"
#include "tests/support/recording_hooks.h"
#include "tests/support/recording_notifier.h"
#include "tests/support/temp_folder.h"
#include "ui/main/quillon_window.h"
#include "ui/widgets/catalogue_list_box.h"

#include <QAbstractSlider>
#include <QLineEdit>
#include <QLocale>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <tuple>

namespace quillon::ui {

/// The real window over a program folder of its own, with hooks and messages recorded. Nothing is open before Open().
class WindowTest : public ::testing::Test
{
protected:
    WindowTest();
    ~WindowTest() override;

    /// Makes the window, runs its start-up sequence and shows it.
    void Open();
    /// Makes the window only.
    Quillon& Make();

    Quillon& Window() { return *m_window; }

    template <class T = QWidget>
    T& Find(const std::string& name)
    {
        return test::Find<T>(*m_window, QString::fromStdString(name));
    }

    QLineEdit& Box(const std::string& name) { return Find<QLineEdit>(name); }

    QAbstractSlider& Spin(const std::string& name) { return Find<QAbstractSlider>(name); }

    CatalogueListBox& List(const std::string& name) { return Find<CatalogueListBox>(name); }

    /// Text of a label, a text box, a list box or a button, in UTF-8; as all texts here with points in its numbers.
    std::string Text(const std::string& name);
    std::string ToolTip(const std::string& name);
    std::string AccessibleName(const std::string& name);
    std::string AccessibleDescription(const std::string& name);
    bool IsFilled(const std::string& marker);
    bool IsMarked(const std::string& name);
    /// Entries of a list, joined by "|".
    std::string Entries(const std::string& list);

    /// Replaces a box's text at one go, as pasting does.
    void Paste(const std::string& box, const std::string& text);
    /// Replaces a box's text key by key.
    void Type(const std::string& box, const std::string& text);
    /// Presses and releases a key as the desktop hands it over: to whatever has the keyboard.
    void Press(Qt::Key key);
    /// Types characters into whatever has the keyboard.
    void Type(const std::string& text);

    void Clear(const std::string& box) { Paste(box, ""); }

    /// Clicks a spin control's arrow with the mouse.
    void ClickUp(const std::string& spin, int times = 1);
    void ClickDown(const std::string& spin, int times = 1);
    /// Chooses the entry of a text in a list. The test fails by an exception when there is none.
    void Choose(const std::string& list, const std::string& entry);

    support::TempFolder folder;
    engine::AntennaSystems systems;
    store::FailingCalls calls; ///< what the catalogue reads through
    support::RecordingHooks hooks;
    support::RecordingNotifier notifier;

private:
    std::unique_ptr<store::Catalogue> m_catalogue;
    std::unique_ptr<Quillon> m_window;
};

/// A test of what both systems have in common, from one system's point of view; the window is open.
class SystemTest : public WindowTest
{
protected:
    void SetUp() override { Open(); }

    [[nodiscard]] virtual engine::SystemId System() const = 0;

    [[nodiscard]] int Number() const { return engine::Number(System()); }

    /// "txtFrequency" gives "txtFrequency(2)".
    [[nodiscard]] std::string Own(const std::string& name) const;
    /// "vsVSWR", 1 gives "vsVSWR(3)".
    [[nodiscard]] std::string Pair(const std::string& name, int part) const;
    /// "vsSystem%CoaxLength" gives "vsSystemTwoCoaxLength".
    [[nodiscard]] std::string Spelled(const std::string& pattern) const;
    /// "cboSystem%Coax", 1 gives "cboSystemTwoCoax(1)".
    [[nodiscard]] std::string Spelled(const std::string& pattern, int index) const;

    engine::SystemData& Data() { return systems.Data[System()]; }

    engine::SystemResults& Results() { return systems.Results[System()]; }

    void ChooseCoax(const std::string& brand, const std::string& type);
    void ChooseAntenna(const std::string& brand, const std::string& model, const std::string& band);
};

/// Runs once for each system.
class EachSystem : public SystemTest, public ::testing::WithParamInterface<engine::SystemId>
{
protected:
    [[nodiscard]] engine::SystemId System() const override { return GetParam(); }
};

/// Runs each row once for each system.
template <class Row>
class EachSystemRow : public SystemTest, public ::testing::WithParamInterface<std::tuple<engine::SystemId, Row>>
{
protected:
    using Base = ::testing::WithParamInterface<std::tuple<engine::SystemId, Row>>;

    [[nodiscard]] engine::SystemId System() const override { return std::get<0>(Base::GetParam()); }

    [[nodiscard]] const Row& Case() const { return std::get<1>(Base::GetParam()); }
};

[[nodiscard]] std::string TestName(engine::SystemId system, std::string row);

struct SystemName
{
    std::string operator()(const ::testing::TestParamInfo<engine::SystemId>& info) const
    {
        return TestName(info.param, "");
    }

    template <class Row>
    std::string operator()(const ::testing::TestParamInfo<std::tuple<engine::SystemId, Row>>& info) const
    {
        return TestName(std::get<0>(info.param), std::get<1>(info.param).name);
    }
};

inline auto BothSystems()
{
    return ::testing::Values(engine::SystemId::One, engine::SystemId::Two);
}

} // namespace quillon::ui
