#include "tests/app/shown_texts.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QTextDocumentFragment>

namespace quillon::test {

namespace {

class Collector
{
public:
    void AddAll(const QWidget& widget)
    {
        m_where =
            widget.objectName().isEmpty() ? QString::fromLatin1(widget.metaObject()->className()) : widget.objectName();
        Add("title", widget.windowTitle());
        Add("tool tip", widget.toolTip());
        Add("status tip", widget.statusTip());
        Add("explanation", widget.whatsThis());
        Add("spoken name", widget.accessibleName());
        Add("spoken description", widget.accessibleDescription());
        AddContents(widget);
        for (const QAction* action : widget.actions()) {
            Add("menu entry", action->text());
            Add("tool tip of a menu entry", action->toolTip());
        }
    }

    std::vector<ShownText> texts;

private:
    void Add(const char* what, QString text)
    {
        if (Qt::mightBeRichText(text)) {
            text = QTextDocumentFragment::fromHtml(text).toPlainText();
        }
        for (const QString& line : WithoutAccessMarks(text).split(u'\n')) {
            texts.push_back({m_where + QStringLiteral(", ") + QString::fromLatin1(what), line});
        }
    }

    void AddContents(const QWidget& widget)
    {
        if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
            Add("text", label->text());
        } else if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
            Add("text", button->text());
        } else if (const auto* frame = qobject_cast<const QGroupBox*>(&widget)) {
            Add("title", frame->title());
        } else if (const auto* box = qobject_cast<const QLineEdit*>(&widget)) {
            Add("text", box->isReadOnly() ? box->text() : QString()); // else it is what a person typed
            Add("placeholder", box->placeholderText());
        } else if (const auto* notes = qobject_cast<const QPlainTextEdit*>(&widget)) {
            Add("placeholder", notes->placeholderText());
        } else if (const auto* menu = qobject_cast<const QMenu*>(&widget)) {
            Add("title", menu->title());
        } else if (const auto* list = qobject_cast<const QComboBox*>(&widget)) {
            AddModel(*list->model());
        } else if (const auto* view = qobject_cast<const QAbstractItemView*>(&widget);
                   view != nullptr && view->model()) {
            AddModel(*view->model());
        }
    }

    void AddModel(const QAbstractItemModel& model)
    {
        for (int column = 0; column < model.columnCount(); ++column) {
            Add("heading", model.headerData(column, Qt::Horizontal).toString());
            for (int row = 0; row < model.rowCount(); ++row) {
                Add("entry", model.index(row, column).data().toString());
                Add("tool tip of an entry", model.index(row, column).data(Qt::ToolTipRole).toString());
            }
        }
    }

    QString m_where;
};

/// The window that a widget belongs to; menus and lists that drop down belong to the one that they open over.
const QWidget& WindowOf(const QWidget& widget)
{
    const QWidget* window = widget.window();
    while (window->windowType() == Qt::Popup && window->parentWidget() != nullptr) {
        window = window->parentWidget()->window();
    }
    return *window;
}

} // namespace

std::vector<ShownText> TextsOf(const QWidget& window)
{
    Collector collector;
    collector.AddAll(window);
    for (const QWidget* child : window.findChildren<QWidget*>()) {
        if (&WindowOf(*child) == &window) {
            collector.AddAll(*child);
        }
    }
    std::erase_if(collector.texts, [](const ShownText& shown) { return shown.text.trimmed().isEmpty(); });
    return collector.texts;
}

QString WithoutAccessMarks(QString text)
{
    text.replace(QStringLiteral("&&"), QStringLiteral("\x01"));
    text.remove(u'&');
    return text.replace(u'\x01', u'&');
}

} // namespace quillon::test
