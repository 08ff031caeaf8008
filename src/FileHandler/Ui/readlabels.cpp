#include "readlabels.h"

#include "groundtruithbehaviorcollection.h"
#include "groundtruithreader.h"
#include "waitcursor.h"
#include <QFileDialog>
#include <QLoggingCategory>

Q_LOGGING_CATEGORY(lcProject, "skerrymoor.project", QtWarningMsg)

std::unique_ptr<GroundTruithBehaviorCollection> ReadLabels(QWidget* parent, DataSet* dataSet,
                                                           const QString& filter)
{
    const QString path = QFileDialog::getOpenFileName(
        parent, QFileDialog::tr("Open Ground Truith Data"), QString(), filter);
    if (path.isEmpty())
        return nullptr;
    const WaitCursor wait;
    GroundTruithReader reader(path);
    reader.SetDataSet(dataSet);
    if (!reader.ReadFile()) {
        qCDebug(lcProject) << reader.GetError();
        return nullptr;
    }
    return reader.TakeCollection();
}
