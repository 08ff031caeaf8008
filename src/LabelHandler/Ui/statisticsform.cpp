#include "statisticsform.h"

#include <QDialog>
#include <QFormLayout>
#include <QPushButton>

QLineEdit* AddReadOnlyField(QFormLayout* form, const QString& label, const QString& toolTip)
{
    auto* field = new QLineEdit;
    field->setReadOnly(true);
    field->setToolTip(toolTip);
    field->setMinimumWidth(field->fontMetrics().averageCharWidth() * 30);
    form->addRow(label, field);
    return field;
}

QLayout* MakeCloseRow(QDialog* dialog, QPushButton* button)
{
    auto* close = new QPushButton(QDialog::tr("Close"));
    button->setAutoDefault(false);
    close->setDefault(true);
    QObject::connect(close, &QPushButton::clicked, dialog, &QDialog::accept);

    auto* row = new QHBoxLayout;
    row->addWidget(button);
    row->addStretch();
    row->addWidget(close);
    return row;
}
