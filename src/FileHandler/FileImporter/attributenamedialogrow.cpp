#include "attributenamedialogrow.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

AttributeNameDialogRow::AttributeNameDialogRow(const QString& caption, QWidget* parent)
    : QWidget(parent), m_Type(new QComboBox), m_Name(new QLineEdit(caption))
{
    m_Type->addItems(AttributeTypeNames());
    // Not the first entry: a column left at "Date" would be dropped at the end of the import.
    m_Type->setCurrentIndex(ATTRIBUTE_OTHER);
    m_Type->setToolTip(tr("What this column holds"));
    m_Name->setToolTip(tr("The name of this column"));
    connect(m_Type, QOverload<int>::of(&QComboBox::activated), this,
            &AttributeNameDialogRow::attTypeChanged);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* label = new QLabel(caption);
    label->setBuddy(m_Type);
    // The same for all rows of a long list, so that the fields line up.
    label->setMinimumWidth(
        fontMetrics().horizontalAdvance(tr("Attribute ") + QStringLiteral("000")));
    layout->addWidget(label);
    layout->addWidget(m_Type);
    layout->addWidget(m_Name, 1);
}

QString AttributeNameDialogRow::GetName() const
{
    return m_Name->text();
}

AttributeType AttributeNameDialogRow::GetType() const
{
    return m_Type->currentIndex();
}

void AttributeNameDialogRow::attTypeChanged(int type)
{
    m_Name->setText(AttributeTypeName(type));
}
