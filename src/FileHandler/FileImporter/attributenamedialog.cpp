#include "attributenamedialog.h"

#include "attributenamedialogrow.h"
#include "dialogbuttons.h"
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>

AttributeNameDialog::AttributeNameDialog(int columns, QWidget* parent) : QDialog(parent)
{
    setWindowTitle(tr("Attribute Names"));
    // Nothing reads this name: it is a note for whoever fills in the columns.
    auto* name = new QLineEdit;
    name->setMaximumWidth(150);
    auto* nameRow = new QFormLayout;
    nameRow->addRow(tr("Name"), name);

    auto* group = new QGroupBox(tr("Attribute Names"));
    auto* scroll = new QScrollArea;
    scroll->setWidget(makeRows(columns));
    scroll->setWidgetResizable(true);
    scroll->setMinimumWidth(scroll->widget()->sizeHint().width() +
                            scroll->verticalScrollBar()->sizeHint().width());
    (new QVBoxLayout(group))->addWidget(scroll);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(tr("<h2>Attribute Names</h2>")));
    layout->addLayout(nameRow);
    layout->addWidget(group, 1);
    layout->addLayout(MakeDialogButtons(this, tr("Add")));
}

QWidget* AttributeNameDialog::makeRows(int columns)
{
    auto* rows = new QWidget;
    auto* layout = new QVBoxLayout(rows);
    for (int number = 1; number <= columns; ++number) {
        auto* row = new AttributeNameDialogRow(tr("Attribute ") + QString::number(number));
        layout->addWidget(row);
        m_Rows.append(row);
    }
    layout->addStretch();
    return rows;
}

ColumnHeaders AttributeNameDialog::GetHeaders() const
{
    ColumnHeaders headers;
    for (const AttributeNameDialogRow* row : m_Rows)
        headers.Append(row->GetName(), row->GetType());
    return headers;
}
