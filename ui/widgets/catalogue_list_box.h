#pragma once

#include <QByteArray>
#include <QComboBox>
#include <QList>

namespace quillon::ui {

/// One entry of a catalogue list: what is shown, and the bytes it stands for in files and folders.
struct CatalogueEntry
{
    QString text;
    QByteArray name;
};

/// Editable list of catalogue entries with the keyboard rules of all ten lists: capitals, completion to the first
/// entry that begins with the text left of the caret, Enter to select and to go on to the next list.
class CatalogueListBox : public QComboBox
{
    Q_OBJECT
    Q_PROPERTY(bool marked READ IsMarked)

public:
    explicit CatalogueListBox(QWidget* parent = nullptr);

    /// Replaces the entries; nothing is selected afterwards and the text is empty. Chosen is not emitted.
    void Fill(const QList<CatalogueEntry>& entries);
    /// Replaces the entries and keeps the one selected before, by its bytes, when it is still there. Chosen is not
    /// emitted.
    void Refill(const QList<CatalogueEntry>& entries);
    /// Removes the entries one by one from the last to the first and empties the text. Chosen is not emitted.
    void Empty();

    /// Selects an entry and emits Chosen once, also when it is selected already. Does nothing for an index off the
    /// list.
    void Choose(int index);

    /// The selected entry's bytes; empty when none is selected.
    [[nodiscard]] QByteArray ChosenName() const;

    [[nodiscard]] bool HasChoice() const { return currentIndex() >= 0; }

    /// List that takes the focus and opens after Enter; none ends the chain.
    void SetNext(CatalogueListBox* next) { m_next = next; }

    /// Marks the choice as not taken over (its figures cannot be computed with), as NumberBox::Mark does.
    void Mark(const QString& why);
    void ClearMark();

    [[nodiscard]] bool IsMarked() const noexcept { return m_marked; }

    void showPopup() override;

signals:
    /// Once per choice: by mouse, by keyboard, by program (setCurrentIndex too), also when the same entry is chosen
    /// again.
    void Chosen();
    /// Enter has made a choice; comes after Chosen.
    void EnterTaken();
    /// The focus has gone elsewhere for good: not to the drop-down list, to a menu or to another window.
    void Left();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void OnIndexChanged(int index);
    void OnActivated(int index);
    void ShowFromStart();

    [[nodiscard]] int IndexEqualTo(const QString& text) const;
    void AddEntries(const QList<CatalogueEntry>& entries);
    void TypeFiltered(QKeyEvent* event);
    void CompleteText();
    void TakeEnter();
    bool PassOn(QEvent* key);
    bool PopupKeyPress(QKeyEvent* event);
    bool PopupKeyRelease(QKeyEvent* event);
    void TakePopupEnter(bool repeated);
    void HighlightText();

    CatalogueListBox* m_next = nullptr;
    bool m_marked = false;
    bool m_announced = false;     ///< the choice that is being made has been announced already
    bool m_enterPressed = false;  ///< Enter went down here, so that its release belongs here too
    bool m_chosenByPopup = false; ///< the drop-down list has made the choice that Enter stands for
    bool m_markedBelow = false;   ///< the text was wholly marked when the drop-down list opened
    int m_wheelTurn = 0;          ///< turn that has not made a whole step yet, eighths of a degree
};

} // namespace quillon::ui
