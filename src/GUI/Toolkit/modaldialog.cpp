#include "modaldialog.h"

#include <QComboBox>
#include <QInputDialog>
#include <QMessageBox>

bool AskYesNo(QWidget* parent, const QString& title, const QString& question)
{
    ModalDialog<QMessageBox> box(QMessageBox::Question, title, question,
                                 QMessageBox::Yes | QMessageBox::No, parent);
    return box.Run() == QMessageBox::Yes;
}

int AskChoice(QWidget* parent, const QString& title, const QString& label,
              const QStringList& choices)
{
    ModalDialog<QInputDialog> dialog(parent);
    dialog->setWindowTitle(title);
    dialog->setLabelText(label);
    dialog->setComboBoxItems(choices);
    if (!dialog.IsAccepted())
        return -1;
    // By its place in the box: two choices may have one name.
    const auto* box = dialog->findChild<QComboBox*>();
    return box ? box->currentIndex() : -1;
}
