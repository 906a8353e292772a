#pragma once

#include <QWidget>

#include <filesystem>

class QBoxLayout;
class QLineEdit;
class QPushButton;

namespace quillon::ui {

class HelpPage;
class ModalCompanion;
class QuietLabel;

/// The help: a document with numbered topics, links, and a box to find text. Not modal, and usable beside modal windows
/// too. Esc closes it.
class HelpWindow : public QWidget
{
    Q_OBJECT

public:
    /// @param file  the document; read anew at each ShowTopic
    explicit HelpWindow(std::filesystem::path file, QWidget* parent = nullptr);

    /// Opens the window, or brings it to the front, at a topic; a document without that topic is shown from its top.
    /// @return false when the document cannot be read: then nothing happens, and nobody is told.
    bool ShowTopic(int context);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Name();
    void LayOut();
    [[nodiscard]] QBoxLayout* FindRow();
    void Wire();
    void AddKeys();
    void FirstSize();

    void OfferSteps(bool hasBack, bool hasForward);
    void cmdContents_Click();
    void txtFind_Change();
    void StartFind();
    void FindNext();
    void FindPrevious();
    void Tell(bool isFound);

    std::filesystem::path m_file;
    ModalCompanion* m_companion;
    HelpPage* m_page;
    QPushButton* m_back;
    QPushButton* m_forward;
    QPushButton* m_contents;
    QLineEdit* m_find;
    QuietLabel* m_status;
    QPushButton* m_close;
    bool m_hasSize = false;
};

} // namespace quillon::ui
