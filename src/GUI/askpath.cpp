#include "askpath.h"

#include <QFileDialog>

QString AskSavePath(QWidget* parent, const QString& title, const QString& filter)
{
    QFileDialog dialog(parent, title, QString(), filter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(filter.section(QLatin1Char('.'), -1).remove(QLatin1Char(')')));
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}
