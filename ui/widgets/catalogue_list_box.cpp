#include "ui/widgets/catalogue_list_box.h"

#include "ui/widgets/mark_painting.h"

#include <QAbstractItemView>
#include <QLineEdit>
#include <QPainter>
#include <QSignalBlocker>

#include <utility>

namespace quillon::ui {

namespace {

constexpr int kVisibleEntries = 20;
/// Lists ask for room for so many characters: long entries must not widen the window.
constexpr int kLeastCharacters = 8;
constexpr int kNameRole = Qt::UserRole;

} // namespace

CatalogueListBox::CatalogueListBox(QWidget* parent)
    : QComboBox(parent)
{
    setEditable(true);
    setCompleter(nullptr);
    setInsertPolicy(NoInsert);
    setMaxVisibleItems(kVisibleEntries);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(kLeastCharacters);
    // The wheel must not take the focus, or scrolling the window would change choices.
    setFocusPolicy(Qt::StrongFocus);
    // What leaving the list chooses is decided in one place, by focusOutEvent; the box's own rule would also choose
    // when the drop-down list opens or another program comes to the front.
    disconnect(lineEdit(), &QLineEdit::editingFinished, this, nullptr);
    connect(lineEdit(), &QLineEdit::textChanged, this, &CatalogueListBox::HighlightText);
    connect(this, &QComboBox::currentIndexChanged, this, &CatalogueListBox::OnIndexChanged);
    connect(this, &QComboBox::activated, this, &CatalogueListBox::OnActivated);
}

void CatalogueListBox::AddEntries(const QList<CatalogueEntry>& entries)
{
    for (const CatalogueEntry& entry : entries) {
        addItem(entry.text, entry.name);
    }
    // Filling an empty list selects its first entry.
    setCurrentIndex(-1);
    clearEditText();
}

void CatalogueListBox::Fill(const QList<CatalogueEntry>& entries)
{
    const QSignalBlocker silent(this);
    clear();
    AddEntries(entries);
}

void CatalogueListBox::Refill(const QList<CatalogueEntry>& entries)
{
    const QSignalBlocker silent(this);
    const bool hadChoice = HasChoice();
    const QByteArray name = ChosenName();
    clear();
    AddEntries(entries);
    if (const int kept = hadChoice ? findData(name, kNameRole) : -1; kept >= 0) {
        setCurrentIndex(kept);
        ShowFromStart();
    }
}

void CatalogueListBox::Empty()
{
    const QSignalBlocker silent(this);
    setCurrentIndex(-1);
    while (count() > 0) {
        removeItem(count() - 1);
    }
    clearEditText();
}

void CatalogueListBox::Choose(int index)
{
    if (index < 0 || index >= count()) {
        return;
    }
    if (index != currentIndex()) {
        setCurrentIndex(index);
        return;
    }
    setEditText(itemText(index));
    ShowFromStart();
    emit Chosen();
}

QByteArray CatalogueListBox::ChosenName() const
{
    return currentData(kNameRole).toByteArray();
}

void CatalogueListBox::Mark(const QString& why)
{
    m_marked = true;
    Explain(*this, why);
    update();
}

void CatalogueListBox::ClearMark()
{
    m_marked = false;
    Explain(*this, {});
    update();
}

void CatalogueListBox::OnIndexChanged(int index)
{
    if (index >= 0) {
        m_announced = true;
        ShowFromStart();
        emit Chosen();
    }
}

void CatalogueListBox::OnActivated(int index)
{
    // A gesture that changes the index has announced its choice by that; one that picks the same entry again has not.
    if (!std::exchange(m_announced, false) && index >= 0) {
        ShowFromStart();
        emit Chosen();
    }
}

void CatalogueListBox::ShowFromStart()
{
    QLineEdit* line = lineEdit();
    if (hasFocus()) {
        const auto length = static_cast<int>(line->text().length());
        line->setSelection(length, -length);
    } else {
        line->home(false);
    }
}

int CatalogueListBox::IndexEqualTo(const QString& text) const
{
    return text.isEmpty() ? -1 : findText(text, Qt::MatchFixedString);
}

void CatalogueListBox::paintEvent(QPaintEvent* event)
{
    QComboBox::paintEvent(event);
    if (m_marked) {
        QPainter painter(this);
        PaintMarkOutline(painter, rect(), palette().color(QPalette::Active, QPalette::Text));
    }
}

} // namespace quillon::ui
