#include "dataexport.h"

#include "askuser.h"
#include "filewriter.h"
#include "runexport.h"
#include "usererror.h"
#include <QObject>

bool ExportDataFile(QWidget* parent, const DataSet* dataSet, const QString& path)
{
    FileWriter writer(path);
    writer.SetDataSet(dataSet);
    const ExportResult result = RunExport(parent, [&](Progress* progress) {
        writer.SetProgress(progress);
        return writer.Write();
    });
    if (result == EXPORT_WRITTEN)
        TellUser(parent, QObject::tr("Success"), QObject::tr("File exported successfully"));
    else if (result == EXPORT_FAILED)
        ShowUserError(parent, QObject::tr("Error writing file"),
                      QObject::tr("Error writing file: ") + writer.GetError());
    return result == EXPORT_WRITTEN;
}
