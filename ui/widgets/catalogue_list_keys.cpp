// The keyboard, wheel and focus rules of the catalogue lists.
#include "engine/key_checks.h"
#include "ui/widgets/catalogue_list_box.h"
#include "ui/widgets/list_keys.h"

#include <QAbstractItemView>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QWheelEvent>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace quillon::ui {

namespace {

constexpr int kWheelStep = 120;

bool IsOneOf(const QKeyEvent& event, std::initializer_list<Qt::Key> keys)
{
    return std::ranges::find(keys, static_cast<Qt::Key>(event.key())) != keys.end();
}

/// Keys that close the drop-down list.
bool ActsOnPopup(const QKeyEvent& event)
{
    const bool toggles = event.modifiers().testFlag(Qt::AltModifier) && IsOneOf(event, {Qt::Key_Up, Qt::Key_Down});
    return toggles || IsEnter(event) || IsOneOf(event, {Qt::Key_F4, Qt::Key_Escape, Qt::Key_Tab, Qt::Key_Backtab});
}

/// Keys that edit the text or move the caret even while the drop-down list is open.
bool EditsText(const QKeyEvent& event)
{
    return TypesCharacter(event) || IsOneOf(event, {Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Left, Qt::Key_Right});
}

/// Scrolls whatever a widget lies in until all of it shows.
void ScrollIntoView(const QWidget& widget)
{
    for (QWidget* around = widget.parentWidget(); around != nullptr; around = around->parentWidget()) {
        if (auto* area = qobject_cast<QScrollArea*>(around)) {
            // Not ensureWidgetVisible, which is content with the caret.
            const QPoint first = widget.mapTo(area->widget(), QPoint());
            area->ensureVisible(first.x() + widget.width(), first.y() + widget.height(), 0, 0);
            area->ensureVisible(first.x(), first.y(), 0, 0);
        }
    }
}

} // namespace

void CatalogueListBox::keyPressEvent(QKeyEvent* event)
{
    m_announced = false;
    if (IsEnter(*event)) {
        // Nothing happens before the key is released, and no button of the window may take it.
        m_enterPressed = m_enterPressed || !event->isAutoRepeat();
        event->accept();
    } else if (TypesCharacter(*event)) {
        TypeFiltered(event);
    } else {
        QComboBox::keyPressEvent(event);
    }
}

void CatalogueListBox::TypeFiltered(QKeyEvent* event)
{
    const QString text = FilteredListText(event->text());
    event->accept();
    if (text.isEmpty()) {
        return;
    }
    QKeyEvent filtered(event->type(), event->key(), event->modifiers(), text, event->isAutoRepeat(),
                       static_cast<quint16>(event->count()));
    QComboBox::keyPressEvent(&filtered);
}

void CatalogueListBox::inputMethodEvent(QInputMethodEvent* event)
{
    QInputMethodEvent filtered(event->preeditString(), event->attributes());
    filtered.setCommitString(FilteredListText(event->commitString()), event->replacementStart(),
                             event->replacementLength());
    QComboBox::inputMethodEvent(&filtered);
    event->setAccepted(filtered.isAccepted());
}

void CatalogueListBox::keyReleaseEvent(QKeyEvent* event)
{
    QComboBox::keyReleaseEvent(event);
    if (event->isAutoRepeat()) {
        return;
    }
    if (IsEnter(*event)) {
        event->accept();
        TakeEnter();
    } else if (engine::FilterListKey(ReleasedKeyCode(*event)) != 0) {
        CompleteText();
    }
}

void CatalogueListBox::CompleteText()
{
    QLineEdit* line = lineEdit();
    const int caret = line->hasSelectedText() ? line->selectionStart() : line->cursorPosition();
    const QString typed = line->text().left(caret);
    if (typed.isEmpty()) {
        return;
    }
    const int found = findText(typed, Qt::MatchStartsWith);
    const QString text = found >= 0 ? itemText(found) : typed;
    if (text != line->text()) {
        line->setText(text);
        line->setCursorPosition(caret);
    }
}

void CatalogueListBox::TakeEnter()
{
    const bool chosen = std::exchange(m_chosenByPopup, false);
    if (!std::exchange(m_enterPressed, false)) {
        return;
    }
    lineEdit()->end(false);
    const int index = IndexEqualTo(lineEdit()->text());
    if (index < 0) {
        return;
    }
    if (chosen) {
        ShowFromStart();
    } else {
        Choose(index);
    }
    if (m_next != nullptr && m_next->isEnabled()) {
        m_next->setFocus(Qt::TabFocusReason);
        m_next->showPopup();
    }
    emit EnterTaken();
}

void CatalogueListBox::wheelEvent(QWheelEvent* event)
{
    if (!hasFocus()) {
        event->ignore();
        return;
    }
    m_announced = false;
    m_wheelTurn += event->angleDelta().y();
    event->accept();
    if (std::abs(m_wheelTurn) >= kWheelStep) {
        m_wheelTurn = 0;
        QComboBox::wheelEvent(event);
    }
}

void CatalogueListBox::focusInEvent(QFocusEvent* event)
{
    QComboBox::focusInEvent(event);
    const Qt::FocusReason reason = event->reason();
    const bool arrives =
        reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason;
    if (std::exchange(m_markedBelow, false) || arrives) {
        ShowFromStart();
    }
}

void CatalogueListBox::focusOutEvent(QFocusEvent* event)
{
    const Qt::FocusReason reason = event->reason();
    if (reason != Qt::PopupFocusReason) {
        // An Enter that goes up in another window is none of this list's.
        m_enterPressed = false;
        m_chosenByPopup = false;
        m_wheelTurn = 0;
    }
    const bool comesBack = view()->isVisible() || reason == Qt::PopupFocusReason ||
                           reason == Qt::ActiveWindowFocusReason || reason == Qt::MenuBarFocusReason;
    if (const int index = comesBack ? -1 : IndexEqualTo(currentText()); index >= 0) {
        setCurrentIndex(index);
    }
    QComboBox::focusOutEvent(event);
    if (!comesBack) {
        emit Left();
    }
}

void CatalogueListBox::showPopup()
{
    m_announced = false;
    // The drop-down list opens beside the box wherever that is: off the screen, say, when Enter has gone on to a list
    // that is scrolled away.
    ScrollIntoView(*this);
    view()->installEventFilter(this);
    const int wanted =
        view()->sizeHintForColumn(0) + view()->verticalScrollBar()->sizeHint().width() + 2 * view()->frameWidth();
    view()->setMinimumWidth(std::min(wanted, screen()->availableGeometry().width()));
    // The open list takes the focus, and with it the mark; what is typed next replaces the whole text all the same.
    m_markedBelow = lineEdit()->hasSelectedText() && lineEdit()->selectedText() == currentText();
    QComboBox::showPopup();
    HighlightText();
}

void CatalogueListBox::HighlightText()
{
    if (view()->isVisible()) {
        view()->setCurrentIndex(model()->index(IndexEqualTo(currentText()), modelColumn(), rootModelIndex()));
    }
}

bool CatalogueListBox::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        // Else the drop-down list would act on these keys here already, and the same key press would arrive again.
        if (ActsOnPopup(*static_cast<QKeyEvent*>(event))) {
            event->accept();
            return true;
        }
        break;
    case QEvent::KeyPress:
        return view()->isVisible() ? PopupKeyPress(static_cast<QKeyEvent*>(event)) : PassOn(event);
    case QEvent::KeyRelease:
        return view()->isVisible() ? PopupKeyRelease(static_cast<QKeyEvent*>(event)) : PassOn(event);
    default:
        break;
    }
    return QComboBox::eventFilter(watched, event);
}

bool CatalogueListBox::PassOn(QEvent* key)
{
    // The display addresses keys to the drop-down list until it has taken its window away. What was typed ahead is for
    // whatever has the keyboard now.
    QCoreApplication::sendEvent(window()->windowHandle(), key);
    return true;
}

bool CatalogueListBox::PopupKeyPress(QKeyEvent* event)
{
    if (IsEnter(*event)) {
        TakePopupEnter(event->isAutoRepeat());
        return true;
    }
    if (ActsOnPopup(*event)) {
        hidePopup();
        if (IsOneOf(*event, {Qt::Key_Tab, Qt::Key_Backtab})) {
            focusNextPrevChild(event->key() == Qt::Key_Tab);
        }
        return true;
    }
    if (EditsText(*event)) {
        if (std::exchange(m_markedBelow, false)) {
            lineEdit()->selectAll();
        }
        keyPressEvent(event);
        return true;
    }
    return false;
}

void CatalogueListBox::TakePopupEnter(bool repeated)
{
    if (repeated) {
        return;
    }
    const int highlighted = view()->currentIndex().row();
    hidePopup();
    m_enterPressed = true;
    m_chosenByPopup = highlighted >= 0;
    Choose(highlighted);
}

bool CatalogueListBox::PopupKeyRelease(QKeyEvent* event)
{
    if (!EditsText(*event)) {
        return false;
    }
    keyReleaseEvent(event);
    return true;
}

} // namespace quillon::ui
