#include "askattribute.h"

#include "dataset.h"
#include <QComboBox>
#include <QInputDialog>

int AskAttribute(QWidget* parent, const DataSet& data)
{
    QStringList names;
    for (int i = 0; i < data.GetAttributeCount(); ++i)
        names.append(data.GetAttributeName(i));
    QInputDialog dialog(parent);
    dialog.setWindowTitle(QInputDialog::tr("Attribute to export"));
    dialog.setLabelText(QInputDialog::tr("Attribute: "));
    dialog.setComboBoxItems(names);
    // By its place in the box: two attributes may have one name.
    return dialog.exec() == QDialog::Accepted && dialog.findChild<QComboBox*>()
               ? dialog.findChild<QComboBox*>()->currentIndex()
               : -1;
}
