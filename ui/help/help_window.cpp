#include "ui/help/help_window.h"

#include "ui/help/help_document.h"
#include "ui/help/help_page.h"
#include "ui/help/help_topics.h"
#include "ui/help/modal_companion.h"
#include "ui/widgets/button_keys.h"
#include "ui/widgets/layout_parts.h"
#include "ui/widgets/looks.h"
#include "ui/widgets/quiet_label.h"
#include "ui/widgets/spoken.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>

#include <algorithm>
#include <utility>

namespace quillon::ui {

namespace {

/// Share of the screen that the window takes at most when it opens.
constexpr double kLargestShare = 0.85;

QPushButton* NewButton(const QString& name, const QString& caption, const QString& toolTip, QWidget* parent)
{
    auto* button = new QPushButton(caption, parent);
    button->setObjectName(name);
    button->setToolTip(toolTip);
    return button;
}

} // namespace

HelpWindow::HelpWindow(std::filesystem::path file, QWidget* parent)
    : QWidget(parent, Qt::Window)
    , m_file(std::move(file))
    , m_companion(new ModalCompanion(this))
    , m_page(new HelpPage(this))
    , m_back(NewButton(QStringLiteral("cmdBack"), tr("&Back"), tr("Alt+Left"), this))
    , m_forward(NewButton(QStringLiteral("cmdForward"), tr("F&orward"), tr("Alt+Right"), this))
    , m_contents(NewButton(QStringLiteral("cmdContents"), tr("Co&ntents"), tr("Alt+Home"), this))
    , m_find(new QLineEdit(this))
    , m_status(new QuietLabel(QuietLabel::Tone::Normal, 1.0, this))
    , m_close(NewButton(QStringLiteral("cmdClose"), tr("&Close"), tr("Esc"), this))
{
    Name();
    LayOut();
    Wire();
    AddKeys();
}

void HelpWindow::Name()
{
    setObjectName(QStringLiteral("HelpWindow"));
    setWindowTitle(tr("Quillon Help"));
    SetSpokenRole(*this, QAccessible::Window);
    // The program ends with its main window, whether or not somebody still reads here.
    setAttribute(Qt::WA_QuitOnClose, false);
    m_page->setObjectName(QStringLiteral("txtHelp"));
    m_page->setAccessibleName(tr("Help text"));
    m_find->setObjectName(QStringLiteral("txtFind"));
    m_find->setToolTip(tr("Ctrl+F; Enter or F3 goes to the next place, Shift+F3 to the one before"));
    m_status->setObjectName(QStringLiteral("lblStatus"));
    m_back->setEnabled(false);
    m_forward->setEnabled(false);
}

void HelpWindow::LayOut()
{
    const int unit = BaseUnit();
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(3 * unit, 3 * unit, 3 * unit, 3 * unit);
    column->setSpacing(2 * unit);
    column->addLayout(FindRow());
    column->addWidget(m_page, 1);
    column->addLayout(ButtonRow({m_back, m_forward, m_contents}, {m_close}));

    const QList<QWidget*> order{m_page, m_back, m_forward, m_contents, m_close, m_find};
    for (qsizetype i = 1; i < order.size(); ++i) {
        setTabOrder(order.at(i - 1), order.at(i));
    }
}

QBoxLayout* HelpWindow::FindRow()
{
    auto* row = new QHBoxLayout;
    row->setSpacing(2 * BaseUnit());
    row->addWidget(FieldLabel(tr("F&ind"), m_find, this));
    row->addWidget(m_find, 1);
    m_status->SetElides(true);
    row->addWidget(m_status, 2);
    return row;
}

void HelpWindow::Wire()
{
    connect(m_back, &QPushButton::clicked, m_page, &HelpPage::backward);
    connect(m_forward, &QPushButton::clicked, m_page, &HelpPage::forward);
    connect(m_page, &HelpPage::HistoryChanged, this, &HelpWindow::OfferSteps);
    connect(m_contents, &QPushButton::clicked, this, &HelpWindow::cmdContents_Click);
    connect(m_close, &QPushButton::clicked, this, &QWidget::close);
    connect(m_find, &QLineEdit::textChanged, this, &HelpWindow::txtFind_Change);
    connect(m_find, &QLineEdit::returnPressed, this, &HelpWindow::FindNext);
}

void HelpWindow::AddKeys()
{
    const auto add = [this](const char* keys, auto* receiver, auto slot) {
        connect(new QShortcut(QKeySequence(QString::fromLatin1(keys)), this), &QShortcut::activated, receiver, slot);
    };
    add("Esc", this, &QWidget::close);
    add("Alt+Left", m_page, &HelpPage::backward);
    add("Alt+Right", m_page, &HelpPage::forward);
    add("Alt+Home", this, &HelpWindow::cmdContents_Click);
    add("Ctrl+F", this, &HelpWindow::StartFind);
    add("F3", this, &HelpWindow::FindNext);
    add("Shift+F3", this, &HelpWindow::FindPrevious);
    // The plus sign stands on another key than its own on many keyboards.
    add("Ctrl++", m_page, &HelpPage::ZoomIn);
    add("Ctrl+=", m_page, &HelpPage::ZoomIn);
    add("Ctrl+-", m_page, &HelpPage::ZoomOut);
    add("Ctrl+0", m_page, &HelpPage::ZoomReset);
}

bool HelpWindow::ShowTopic(int context)
{
    const std::optional<QString> html = ReadHelpDocument(m_file);
    if (!html) {
        return false;
    }
    FirstSize();
    m_companion->Follow();
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    // A place is found by its height, which counts only once the page has its width.
    m_page->Show(*html, context);
    raise();
    activateWindow();
    m_page->setFocus();
    return true;
}

void HelpWindow::FirstSize()
{
    if (!std::exchange(m_hasSize, true)) {
        const QSize most = screen()->availableSize() * kLargestShare;
        resize(sizeHint().boundedTo(most));
    }
}

void HelpWindow::OfferSteps(bool hasBack, bool hasForward)
{
    // A button that goes out with the focus would hand it to the next one.
    const QWidget* focused = focusWidget();
    if ((focused == m_back && !hasBack) || (focused == m_forward && !hasForward)) {
        m_page->setFocus();
    }
    m_back->setEnabled(hasBack);
    m_forward->setEnabled(hasForward);
}

void HelpWindow::keyPressEvent(QKeyEvent* event)
{
    if (!PressFocusedButton(*this, *event)) {
        QWidget::keyPressEvent(event);
    }
}

void HelpWindow::cmdContents_Click()
{
    m_page->GoTo(kHelpOverview);
}

void HelpWindow::txtFind_Change()
{
    Tell(true);
}

void HelpWindow::StartFind()
{
    m_find->setFocus();
    m_find->selectAll();
}

void HelpWindow::FindNext()
{
    Tell(m_page->FindText(m_find->text(), {}));
}

void HelpWindow::FindPrevious()
{
    Tell(m_page->FindText(m_find->text(), QTextDocument::FindBackward));
}

void HelpWindow::Tell(bool isFound)
{
    m_status->setText(isFound ? QString() : tr("“%1” is not in this help.").arg(m_find->text()));
}

} // namespace quillon::ui
