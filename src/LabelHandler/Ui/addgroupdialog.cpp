#include "addgroupdialog.h"

#include "dialogbuttons.h"
#include "usererror.h"
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

AddGroupDialog::AddGroupDialog(int mode, QWidget* parent) : QDialog(parent), m_Name(new QLineEdit)
{
    setWindowTitle(mode == ADD_GROUP ? tr("Add Group") : tr("Edit Group"));
    m_Name->setMinimumWidth(fontMetrics().averageCharWidth() * 32);
    auto* form = new QFormLayout;
    form->addRow(tr("Group Name"), m_Name);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(tr("<b>Add Group<b>")));
    layout->addLayout(form);
    layout->addStretch();
    layout->addLayout(MakeDialogButtons(this, tr("Save Group")));
    m_Name->setFocus();
}

void AddGroupDialog::SetName(const QString& name)
{
    m_Name->setText(name);
    m_Name->selectAll();
}

QString AddGroupDialog::GetName() const
{
    return m_Name->text().trimmed();
}

void AddGroupDialog::validateInput()
{
    if (!GetName().isEmpty()) {
        QDialog::accept();
        return;
    }
    ShowUserError(this, tr("Error - Group Name"),
                  tr("No name entered. Please enter a group name."));
    m_Name->setFocus();
}
