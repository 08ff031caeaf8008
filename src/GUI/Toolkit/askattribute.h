#pragma once

#include "dataset.h"
#include <QComboBox>
#include <QInputDialog>
#include <QPointer>

/// Asks for an attribute to export; -1 when the user cancels.
inline int AskAttribute(QWidget* parent, const DataSet& data)
{
    // On the heap: the parent may take the dialog with it.
    const QPointer<QInputDialog> dialog(new QInputDialog(parent));
    dialog->setWindowTitle(QInputDialog::tr("Attribute to export"));
    dialog->setLabelText(QInputDialog::tr("Attribute: "));
    dialog->setComboBoxItems(data.GetAttributeNames());
    const bool isAccepted = dialog->exec() == QDialog::Accepted;
    // By its place in the box: two attributes may have one name.
    const auto* box = dialog ? dialog->findChild<QComboBox*>() : nullptr;
    const int attribute = isAccepted && box ? box->currentIndex() : -1;
    delete dialog;
    return attribute;
}
