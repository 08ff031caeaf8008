#pragma once

#include <QDialog>
#include <QHBoxLayout>
#include <QPushButton>

/// A row of two buttons at the right: the first accepts the dialog and answers to Enter, the
/// second, "Cancel", rejects it. acceptButton is given the first.
inline QLayout* MakeDialogButtons(QDialog* dialog, const QString& acceptText,
                                  QPushButton** acceptButton = nullptr)
{
    auto* accept = new QPushButton(acceptText);
    auto* cancel = new QPushButton(QDialog::tr("Cancel"));
    accept->setDefault(true);
    QObject::connect(accept, &QPushButton::clicked, dialog, &QDialog::accept);
    QObject::connect(cancel, &QPushButton::clicked, dialog, &QDialog::reject);

    if (acceptButton)
        *acceptButton = accept;

    auto* row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(accept);
    row->addWidget(cancel);
    return row;
}
