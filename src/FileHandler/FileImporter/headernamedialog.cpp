#include "headernamedialog.h"

#include "dialogbuttons.h"
#include <QComboBox>
#include <QFormLayout>
#include <QLineEdit>

HeaderNameDialog::HeaderNameDialog(const QString& name, AttributeType type, QWidget* parent)
    : QDialog(parent), m_Name(new QLineEdit(name)), m_Type(new QComboBox)
{
    setWindowTitle(tr("Header Name"));
    m_Type->addItems(AttributeTypeNames());
    m_Type->setCurrentIndex(type);
    m_Name->selectAll();

    auto* layout = new QVBoxLayout(this);
    auto* form = new QFormLayout;
    form->addRow(tr("Name:"), m_Name);
    form->addRow(tr("Data Type:"), m_Type);
    layout->addLayout(form);
    layout->addLayout(MakeDialogButtons(this, tr("Update")));
}

QString HeaderNameDialog::GetName() const
{
    return m_Name->text();
}

AttributeType HeaderNameDialog::GetType() const
{
    return m_Type->currentIndex();
}
