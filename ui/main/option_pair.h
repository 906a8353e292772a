#pragma once

#include <QObject>
#include <QString>

class QHBoxLayout;
class QRadioButton;
class QWidget;

namespace quillon::ui {

/// Two option buttons: 0 lets the user type a figure, 1 takes it from the catalogue and is chosen at first.
class OptionPair : public QObject
{
    Q_OBJECT

public:
    OptionPair(const QString& arrayName, const QString& userCaption, const QString& dataCaption, QWidget* parent);

    [[nodiscard]] QHBoxLayout* Row() const;

    [[nodiscard]] QRadioButton* User() const { return m_user; }

    [[nodiscard]] QRadioButton* Catalogue() const { return m_catalogue; }

signals:
    /// @param user  the user's own figure is to be used
    void Changed(bool user);

private:
    QRadioButton* m_user;
    QRadioButton* m_catalogue;
};

} // namespace quillon::ui
