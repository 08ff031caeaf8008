#include "runexport.h"

#include "dialogprogress.h"
#include <QCoreApplication>

ExportResult RunExport(QWidget* parent, const std::function<bool(Progress*)>& write)
{
    DialogProgress progress(parent, QCoreApplication::translate("RunExport", "Export"),
                            DialogProgress::CAN_STOP, DialogProgress::SHOW_WHEN_LONG);
    progress.SetLabelText(QCoreApplication::translate("RunExport", "Writing file"));
    if (write(&progress))
        return EXPORT_WRITTEN;
    return progress.IsStopRequested() ? EXPORT_STOPPED : EXPORT_FAILED;
}
