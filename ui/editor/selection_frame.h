#pragma once

#include "store/antenna_files.h"
#include "ui/widgets/titled_frame.h"

#include <array>

class QGridLayout;
class QLabel;
class QPushButton;
class QVBoxLayout;

namespace quillon::ui {

class CatalogueListBox;
class NameBox;

/// The three steps of the antenna editor, and what the index says of the chosen maker. The editor wires its controls.
class SelectionFrame : public TitledFrame
{
    Q_OBJECT

public:
    explicit SelectionFrame(QWidget* parent);

    [[nodiscard]] CatalogueListBox& Makers() const { return *m_makers; }

    [[nodiscard]] CatalogueListBox& Models() const { return *m_models; }

    [[nodiscard]] NameBox& Brand() const { return *m_brand; }

    [[nodiscard]] NameBox& Model() const { return *m_model; }

    [[nodiscard]] QPushButton& AddNewBrand() const { return *m_addNewBrand; }

    [[nodiscard]] QPushButton& AddNewModel() const { return *m_addNewModel; }

    [[nodiscard]] QPushButton& Edit() const { return *m_edit; }

    [[nodiscard]] QPushButton& Save() const { return *m_save; }

    void ShowFileInfo(const store::IndexEntry& entry);

    /// Empties everything: no maker, no model, nothing to add, edit or save.
    void Clear();

    /// Insists on its whole title.
    [[nodiscard]] QSize minimumSizeHint() const override;

    /// All controls in the order of the Tab key.
    [[nodiscard]] QList<QWidget*> TabOrder() const;

private:
    void Name();
    void LayOut();
    [[nodiscard]] QVBoxLayout* AddStep(int number, QWidget* control);
    [[nodiscard]] QGridLayout* FileInfo();

    CatalogueListBox* m_makers;
    CatalogueListBox* m_models;
    NameBox* m_brand;
    NameBox* m_model;
    QPushButton* m_addNewBrand;
    QPushButton* m_addNewModel;
    QPushButton* m_edit;
    QPushButton* m_save;
    std::array<QLabel*, 3> m_fileInfo{};
};

} // namespace quillon::ui
