#pragma once

#include <QFileDialog>
#include <QPointer>

/// Asks for a file to write, where proposal stands at first; empty when the user cancels. A name
/// without an ending gets that of the filter, "CSV (*.csv)".
inline QString AskSavePath(QWidget* parent, const QString& title, const QString& filter,
                           const QString& proposal = QString())
{
    // On the heap: the parent may take the dialog with it.
    const QPointer<QFileDialog> dialog(new QFileDialog(parent, title, QString(), filter));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->selectFile(proposal);
    dialog->setDefaultSuffix(filter.section(QLatin1Char('.'), -1).remove(QLatin1Char(')')));
    const bool isAccepted = dialog->exec() == QDialog::Accepted;
    QString path = isAccepted && dialog ? dialog->selectedFiles().value(0) : QString();
    delete dialog;
    return path;
}
