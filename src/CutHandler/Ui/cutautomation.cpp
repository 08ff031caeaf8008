#include "cutautomation.h"

#include "cutcollection.h"
#include "dataset.h"
#include "dialogprogress.h"
#include "localvariancedialog.h"
#include "localvarianceextractor.h"
#include "minimamaximadialog.h"
#include "modaldialog.h"
#include "periodiccutdialog.h"
#include "pipcutdialog.h"
#include "pipextractor.h"
#include "rowprogress.h"
#include "simplecuts.h"
#include "usererror.h"
#include <QStringList>
#include <optional>

namespace
{

enum Method {
    PIECEWISE_LINEAR = 0, // cuts nothing
    IMPORTANT_POINTS = 1,
    PERIODIC = 2,
    SHARP_TRANSITIONS = 3,
    MINIMA_MAXIMA = 4
};

// Finding the rows and cutting there; nothing is cut when the user stops it.
class CutProgress : public DialogProgress
{
public:
    explicit CutProgress(QWidget* parent)
        : DialogProgress(parent, CutAutomation::tr("Automatic Cutting"), CAN_STOP, SHOW_WHEN_LONG)
    {
        SetLabelText(CutAutomation::tr("Cutting the recording"));
    }
};

// What the user chose, nothing on Cancel.
template <class Dialog, class... Arguments>
auto ask(Arguments&&... arguments)
    -> std::optional<decltype(std::declval<Dialog>().GetParameters())>
{
    ModalDialog<Dialog> dialog(std::forward<Arguments>(arguments)...);
    if (!dialog.IsAccepted())
        return std::nullopt;
    return dialog->GetParameters();
}

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
    const auto chosen = ask<PipCutDialog>(PipCutParameters(), *m_DataSet, m_Parent);
    if (!chosen)
        return;
    CutProgress progress(m_Parent);
    PIPExtractor extractor;
    extractor.setDataSet(m_DataSet);
    extractor.setMeasure(chosen->m_Measure);
    if (!extractor.extract(chosen->m_Attribute, chosen->m_Partitions, chosen->m_MinimumDistance,
                           chosen->m_Stopping, progress))
        return;
    const std::vector<PIPSegment>& segments = extractor.getSegments();
    insertCuts(int(segments.size()), progress, [&](int i) {
        const PIPSegment& segment = segments[size_t(i)];
        m_CutCollection->InsertCut(segment.m_Start, segment.m_End, CutSegment::SEGMENT_CUT);
    });
}

void CutAutomation::cutPeriodically()
{
    const auto chosen = ask<PeriodicCutDialog>(PeriodicCutParameters(), m_Parent);
    if (!chosen)
        return;
    CutProgress progress(m_Parent);
    insertCuts(PeriodicCuts(*m_DataSet, *chosen), progress);
}

void CutAutomation::cutAtSharpTransitions()
{
    const auto chosen = ask<LocalVarianceDialog>(LocalVarianceParameters(), *m_DataSet, m_Parent);
    if (!chosen)
        return;
    CutProgress progress(m_Parent);
    LocalVarianceExtractor extractor;
    extractor.setDataSet(m_DataSet);
    extractor.extract(*chosen, progress);
    insertCuts(extractor.getIndices(), progress);
}

void CutAutomation::cutAtExtrema()
{
    const auto chosen = ask<MinimaMaximaDialog>(MinimaMaximaParameters(), *m_DataSet, m_Parent);
    if (!chosen)
        return;
    CutProgress progress(m_Parent);
    insertCuts(MinimaMaximaCuts(*m_DataSet, *chosen, progress), progress);
}

void CutAutomation::insertCuts(const std::vector<int>& rows, Progress& progress)
{
    insertCuts(int(rows.size()), progress, [&](int i) {
        m_CutCollection->InsertCut(rows[size_t(i)], CutSegment::SEGMENT_CUT);
    });
}

void CutAutomation::insertCuts(int count, Progress& progress,
                               const std::function<void(int)>& insert)
{
    const SegmentPlaces before = m_CutCollection->GetPlaces();
    RowProgress steps(progress, count);
    for (int i = 0; i < count; ++i) {
        if (!steps.Advance()) {
            m_CutCollection->ReturnTo(before);
            return;
        }
        insert(i);
    }
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
