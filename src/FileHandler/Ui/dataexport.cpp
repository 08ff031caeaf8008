#include "dataexport.h"

#include "filewriter.h"
#include "usererror.h"
#include "waitcursor.h"
#include <QMessageBox>

namespace
{

bool write(FileWriter& writer)
{
    const WaitCursor wait;
    return writer.Write();
}

} // namespace

bool ExportDataFile(QWidget* parent, const DataSet* dataSet, const QString& path)
{
    FileWriter writer(path);
    writer.SetDataSet(dataSet);
    const bool isWritten = write(writer);
    if (isWritten)
        QMessageBox::information(parent, QObject::tr("Success"),
                                 QObject::tr("File exported successfully"));
    else
        ShowUserError(parent, QObject::tr("Error writing file"),
                      QObject::tr("Error writing file: ") + writer.GetError());
    return isWritten;
}
