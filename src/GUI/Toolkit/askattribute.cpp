#include "askattribute.h"

#include "dataset.h"
#include "modaldialog.h"
#include <QInputDialog>

int AskAttribute(QWidget* parent, const DataSet& data)
{
    return AskChoice(parent, QInputDialog::tr("Attribute to export"),
                     QInputDialog::tr("Attribute: "), data.GetAttributeNames());
}
