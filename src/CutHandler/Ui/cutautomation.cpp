#include "cutautomation.h"

#include "cutcollection.h"
#include "dataset.h"
#include "localvariancedialog.h"
#include "localvarianceextractor.h"
#include "minimamaximadialog.h"
#include "periodiccutdialog.h"
#include "pipcutdialog.h"
#include "pipextractor.h"
#include "simplecuts.h"
#include "usererror.h"
#include "waitcursor.h"
#include <QStringList>

namespace
{

enum Method {
    PIECEWISE_LINEAR = 0, // cuts nothing
    IMPORTANT_POINTS = 1,
    PERIODIC = 2,
    SHARP_TRANSITIONS = 3,
    MINIMA_MAXIMA = 4
};

} // namespace

QString CutAutomation::getMethodName(int method)
{
    const QStringList names{tr("Piecewise Linear Approximation"),
                            tr("Perceptually Important Points"), tr("Periodic"),
                            tr("Sharp Transitions"), tr("Local Minima and Maxima")};
    return names.value(method, tr("Error"));
}

bool CutAutomation::generateCuts(int method)
{
    if (!m_DataSet) {
        m_ErrorMessage = tr("No data set found");
        return false;
    }
    if (!m_CutCollection) {
        m_ErrorMessage = tr("No cut collection found");
        return false;
    }
    switch (method) {
    case PIECEWISE_LINEAR:
        return true;
    case IMPORTANT_POINTS:
        cutAtImportantPoints();
        return true;
    case PERIODIC:
        cutPeriodically();
        return true;
    case SHARP_TRANSITIONS:
        cutAtSharpTransitions();
        return true;
    case MINIMA_MAXIMA:
        cutAtExtrema();
        return true;
    default:
        return false;
    }
}

void CutAutomation::cutAtImportantPoints()
{
    PipCutDialog dialog({}, *m_DataSet, m_Parent);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const WaitCursor wait;
    const PipCutParameters chosen = dialog.GetParameters();
    PIPExtractor extractor;
    extractor.setDataSet(m_DataSet);
    extractor.setMeasure(chosen.m_Measure);
    extractor.extract(chosen.m_Attribute, chosen.m_Partitions, chosen.m_MinimumDistance,
                      chosen.m_Stopping);
    for (const PIPSegment& segment : extractor.getSegments())
        m_CutCollection->InsertCut(segment.m_Start, segment.m_End, CutSegment::SEGMENT_CUT);
}

void CutAutomation::cutPeriodically()
{
    PeriodicCutDialog dialog({}, m_Parent);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const WaitCursor wait;
    insertCuts(PeriodicCuts(*m_DataSet, dialog.GetParameters()));
}

void CutAutomation::cutAtSharpTransitions()
{
    LocalVarianceDialog dialog({}, *m_DataSet, m_Parent);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const WaitCursor wait;
    LocalVarianceExtractor extractor;
    extractor.setDataSet(m_DataSet);
    extractor.extract(dialog.GetParameters());
    insertCuts(extractor.getIndices());
}

void CutAutomation::cutAtExtrema()
{
    MinimaMaximaDialog dialog({}, *m_DataSet, m_Parent);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const WaitCursor wait;
    insertCuts(MinimaMaximaCuts(*m_DataSet, dialog.GetParameters()));
}

void CutAutomation::insertCuts(const std::vector<int>& rows)
{
    for (const int row : rows)
        m_CutCollection->InsertCut(row, CutSegment::SEGMENT_CUT);
}

void CutByItself(const SharedRecording& recording, QWidget* parent, int method)
{
    CutAutomation cutter(parent);
    cutter.setDataSet(recording->GetDataSet());
    cutter.setCutCollection(recording->GetCutCollection());
    if (cutter.generateCuts(method))
        recording->TellSegments();
    else
        ShowUserError(parent, CutAutomation::tr("Error Generating Cuts"), cutter.getErrorMessage());
}
