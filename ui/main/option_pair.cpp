#include "ui/main/option_pair.h"

#include "ui/widgets/looks.h"
#include "ui/widgets/object_names.h"

#include <QHBoxLayout>
#include <QRadioButton>

namespace quillon::ui {

OptionPair::OptionPair(const QString& arrayName, const QString& userCaption, const QString& dataCaption,
                       QWidget* parent)
    : QObject(parent)
    , m_user(new QRadioButton(userCaption, parent))
    , m_catalogue(new QRadioButton(dataCaption, parent))
{
    m_user->setObjectName(IndexedName(arrayName, 0));
    m_catalogue->setObjectName(IndexedName(arrayName, 1));
    m_catalogue->setChecked(true);
    connect(m_user, &QRadioButton::toggled, this, &OptionPair::Changed);
}

QHBoxLayout* OptionPair::Row() const
{
    auto* row = new QHBoxLayout;
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(3 * BaseUnit());
    row->addWidget(m_user);
    row->addWidget(m_catalogue);
    row->addStretch(1);
    return row;
}

} // namespace quillon::ui
