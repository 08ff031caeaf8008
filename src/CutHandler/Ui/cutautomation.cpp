#include "cutautomation.h"

#include "askuser.h"
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
#include "simplecuts.h"
#include "usererror.h"
#include <QLocale>
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

QString title()
{
    return CutAutomation::tr("Automatic Cutting");
}

// For a sentence: 12,345.
QString number(int count)
{
    return QLocale(QLocale::English).toString(count);
}

// Finding the rows and cutting there; nothing is cut when the user stops it.
class CutProgress : public DialogProgress
{
public:
    explicit CutProgress(QWidget* parent)
        : DialogProgress(parent, title(), CAN_STOP, SHOW_WHEN_LONG)
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

// None when the user stops the search.
std::vector<RowSpan> partsBetweenPoints(const DataSet& data, const PipCutParameters& chosen,
                                        QWidget* parent)
{
    CutProgress progress(parent);
    PIPExtractor extractor;
    extractor.setDataSet(&data);
    extractor.setMeasure(chosen.m_Measure);
    extractor.extract(chosen.m_Attribute, chosen.m_Partitions, chosen.m_MinimumDistance,
                      chosen.m_Stopping, progress);
    std::vector<RowSpan> parts;
    parts.reserve(extractor.getSegments().size());
    for (const PIPSegment& segment : extractor.getSegments())
        parts.push_back({segment.m_Start, segment.m_End});
    return parts;
}

template <class Cut>
void takeAway(std::vector<Cut>& cuts, const std::vector<int>& places)
{
    std::vector<char> isLeftOut(cuts.size(), 0);
    for (const int place : places)
        isLeftOut[size_t(place)] = 1;
    size_t kept = 0;
    for (size_t i = 0; i < cuts.size(); ++i) {
        if (!isLeftOut[i])
            cuts[kept++] = cuts[i];
    }
    cuts.resize(kept);
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
    insertRanges(partsBetweenPoints(*m_DataSet, *chosen, m_Parent));
}

void CutAutomation::cutPeriodically()
{
    const auto chosen = ask<PeriodicCutDialog>(PeriodicCutParameters(), m_Parent);
    if (!chosen)
        return;
    insertAt(PeriodicCuts(*m_DataSet, *chosen));
}

void CutAutomation::cutAtSharpTransitions()
{
    const auto chosen = ask<LocalVarianceDialog>(LocalVarianceParameters(), *m_DataSet, m_Parent);
    if (!chosen)
        return;
    LocalVarianceExtractor extractor;
    extractor.setDataSet(m_DataSet);
    {
        CutProgress progress(m_Parent);
        extractor.extract(*chosen, progress);
    }
    insertAt(extractor.getIndices());
}

void CutAutomation::cutAtExtrema()
{
    const auto chosen = ask<MinimaMaximaDialog>(MinimaMaximaParameters(), *m_DataSet, m_Parent);
    if (!chosen)
        return;
    std::vector<int> rows;
    {
        CutProgress progress(m_Parent);
        rows = MinimaMaximaCuts(*m_DataSet, *chosen, progress);
    }
    insertAt(std::move(rows));
}

void CutAutomation::insertAt(std::vector<int> rows)
{
    std::vector<RowSpan> cuts;
    cuts.reserve(rows.size());
    for (const int row : rows)
        cuts.push_back({row, row});
    const auto leftOut = askAbout(cuts);
    if (!leftOut)
        return;
    takeAway(rows, *leftOut);
    CutProgress progress(m_Parent);
    m_CutCollection->InsertCutsAt(rows, CutSegment::SEGMENT_CUT, progress);
}

void CutAutomation::insertRanges(std::vector<RowSpan> ranges)
{
    const auto leftOut = askAbout(ranges);
    if (!leftOut)
        return;
    takeAway(ranges, *leftOut);
    CutProgress progress(m_Parent);
    m_CutCollection->InsertRanges(ranges, CutSegment::SEGMENT_CUT, progress);
}

std::optional<std::vector<int>> CutAutomation::askAbout(const std::vector<RowSpan>& cuts)
{
    std::optional<CutReview> review;
    {
        CutProgress progress(m_Parent);
        review = m_CutCollection->ReviewCuts(cuts, progress);
    }
    if (!review)
        return std::nullopt;
    if (!review->m_InLabels.empty())
        return askAboutLabels(*review);
    const QString question = tr("%1 cuts would be made, and there is no undo. Make them?");
    if (review->m_Count > ManyCuts &&
        !AskYesNo(m_Parent, title(), question.arg(number(review->m_Count))))
        return std::nullopt;
    return std::vector<int>();
}

std::optional<std::vector<int>> CutAutomation::askAboutLabels(const CutReview& review)
{
    const int inLabels = int(review.m_InLabels.size());
    const QString all = number(review.m_Count);
    const QString question = tr("%1 cuts would be made, %2 of them inside labels, and there is no "
                                "undo.\nA label that is cut keeps only the part before the cut.");
    const QStringList choices{
        tr("Leave out those inside labels: %1 cuts").arg(number(review.m_Count - inLabels)),
        tr("Cut labels too: %1 cuts").arg(all)};
    switch (AskChoice(m_Parent, title(), question.arg(all, number(inLabels)), choices)) {
    case 0:
        return review.m_InLabels;
    case 1:
        return std::vector<int>();
    default:
        return std::nullopt;
    }
}

void CutByItself(const SharedRecording& recording, QWidget* parent, int method)
{
    // The window may close, or open another recording, while it asks.
    const SharedRecording kept = recording->shared_from_this();
    CutAutomation cutter(parent);
    cutter.setDataSet(kept->GetDataSet());
    cutter.setCutCollection(kept->GetCutCollection());
    if (cutter.generateCuts(method))
        kept->TellSegments();
    else
        ShowUserError(parent, CutAutomation::tr("Error Generating Cuts"), cutter.getErrorMessage());
}
