#include "askpath.h"

#include "modaldialog.h"
#include <QFileDialog>

QString AskSavePath(QWidget* parent, const QString& title, const QString& filter,
                    const QString& proposal)
{
    ModalDialog<QFileDialog> dialog(parent, title, QString(), filter);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->selectFile(proposal);
    dialog->setDefaultSuffix(filter.section(QLatin1Char('.'), -1).remove(QLatin1Char(')')));
    return dialog.IsAccepted() ? dialog->selectedFiles().value(0) : QString();
}
