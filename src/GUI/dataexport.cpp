#include "dataexport.h"

#include "filewriter.h"
#include "usererror.h"
#include <QMessageBox>

bool ExportDataFile(QWidget* parent, const DataSet* dataSet, const QString& path)
{
    FileWriter writer(path);
    writer.SetDataSet(dataSet);
    const bool isWritten = writer.Write();
    if (isWritten)
        QMessageBox::information(parent, QObject::tr("Success"),
                                 QObject::tr("File exported successfully"));
    else
        ShowUserError(parent, QObject::tr("Error writing file"),
                      QObject::tr("Error writing file: ") + writer.GetError());
    return isWritten;
}
