#pragma once

#include <QList>
#include <QString>

class QVBoxLayout;
class QWidget;

namespace quillon::ui {

class CatalogueListBox;

/// Makes the lists of one group.
[[nodiscard]] QList<CatalogueListBox*> NewLists(int count, QWidget* parent);

/// Names the lists as elements of one array, from 0.
void NameLists(const QList<CatalogueListBox*>& lists, const QString& arrayName);

void EnableLists(const QList<CatalogueListBox*>& lists, bool enabled);

/// Lists one above the other, each with its label at the left, and a line below them.
[[nodiscard]] QVBoxLayout* ListColumn(const QList<QString>& labels, const QList<CatalogueListBox*>& lists,
                                      QWidget* line);

} // namespace quillon::ui
