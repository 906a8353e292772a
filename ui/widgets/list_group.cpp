#include "ui/widgets/list_group.h"

#include "ui/widgets/catalogue_list_box.h"
#include "ui/widgets/layout_parts.h"
#include "ui/widgets/looks.h"
#include "ui/widgets/object_names.h"

#include <QGridLayout>
#include <QLabel>

namespace quillon::ui {

QList<CatalogueListBox*> NewLists(int count, QWidget* parent)
{
    QList<CatalogueListBox*> lists;
    for (int index = 0; index < count; ++index) {
        lists.append(new CatalogueListBox(parent));
    }
    return lists;
}

void NameLists(const QList<CatalogueListBox*>& lists, const QString& arrayName)
{
    for (int index = 0; index < lists.size(); ++index) {
        lists[index]->setObjectName(IndexedName(arrayName, index));
    }
}

void EnableLists(const QList<CatalogueListBox*>& lists, bool enabled)
{
    for (CatalogueListBox* list : lists) {
        list->setEnabled(enabled);
    }
}

QVBoxLayout* ListColumn(const QList<QString>& labels, const QList<CatalogueListBox*>& lists, QWidget* line)
{
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(2 * BaseUnit());
    grid->setVerticalSpacing(BaseUnit());
    grid->setColumnStretch(1, 1);
    for (int row = 0; row < lists.size(); ++row) {
        grid->addWidget(FieldLabel(labels[row], lists[row], lists[row]->parentWidget()), row, 0);
        grid->addWidget(lists[row], row, 1);
    }
    auto* column = new QVBoxLayout;
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(BaseUnit());
    column->addLayout(grid);
    column->addWidget(line);
    return column;
}

} // namespace quillon::ui
