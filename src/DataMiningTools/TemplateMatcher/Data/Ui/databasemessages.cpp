#include "databasemessages.h"

#include "askuser.h"
#include "databasequery.h"
#include "rowlist.h"
#include "usererror.h"
#include <QMessageBox>
#include <QPointer>

void ShowDatabaseError(QWidget* parent, const QString& text)
{
    const QString reason = LastQueryError();
    ShowUserError(parent, QMessageBox::tr("Error"),
                  reason.isEmpty() ? text
                                   : text + QStringLiteral(" (") + reason + QLatin1Char(')'));
}

bool DeleteCurrentRow(const RowList& list, bool (*deleteRow)(int id), const QString& question,
                      const QString& title, const QString& text)
{
    const int id = list.GetCurrentId();
    if (id == -1)
        return false;
    const QPointer<QWidget> window(list.window());
    const bool isWanted =
        AskYesNo(window, QMessageBox::tr("Delete"), question.arg(list.GetCurrentItem()->text()));
    if (!isWanted || !window)
        return false;
    if (!deleteRow(id)) {
        ShowDatabaseError(window, QMessageBox::tr("Error: Nothing was deleted."));
        return false;
    }
    TellUser(window, title, text);
    return window;
}
