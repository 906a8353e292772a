#pragma once

#include "ui/main/force_line.h"
#include "ui/main/input_frame.h"
#include "ui/widgets/catalogue_list_box.h"

namespace quillon::ui {

class SystemPort;

/// Choice of one system's coax: brand and type.
class CoaxFrame : public InputFrame
{
    Q_OBJECT

public:
    enum List { Brand, Type, ListCount };

    CoaxFrame(engine::SystemId system, Workspace& workspace, SystemPort& port, QWidget* parent = nullptr);

    /// Fills the brand list, keeping what is chosen.
    void SetMakers(const QList<CatalogueEntry>& makers);
    void cboCoax_Click(int index);
    /// Chooses the record's brand and type in the lists. What a list does not have stays as the record holds it.
    void ShowRecord();
    void SetListsEnabled(bool enabled);
    /// List that opens after a type was taken with Enter.
    void SetNext(CatalogueListBox* next);
    [[nodiscard]] QList<QWidget*> TabOrder() const;

private:
    void Name();
    void LayOut();
    void BrandChosen();
    void TypeChosen();
    void TakeCable();
    /// Reads the chosen cable's figures. @return false, and those before stay, when they could not be read
    [[nodiscard]] bool LoadCable();
    void ShowFigure(int place, std::optional<float> figure, const QString& pattern);

    SystemPort& m_port;
    QList<CatalogueListBox*> m_lists;
    ForceLine* m_line;
    store::CableFigures m_figures;
};

} // namespace quillon::ui
