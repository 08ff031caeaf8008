#include "patternbuilder.h"

#include "dataset.h"
#include "signalresampling.h"
#include <QCoreApplication>
#include <algorithm>
#include <cmath>

namespace
{

using Signals = std::vector<std::unique_ptr<SignalTemplateDataObject>>;

QString tr(const char* text)
{
    return QCoreApplication::translate("PatternBuilder", text);
}

QString findFault(ConstSpan<double> values, const QString& name)
{
    const auto isMissing = [](double value) { return !std::isfinite(value); };
    if (std::any_of(values.begin(), values.end(), isMissing))
        return tr("Error: %1 has missing values in the template.").arg(name);
    if (std::all_of(values.begin(), values.end(), [=](double value) { return value == values[0]; }))
        return tr("Error: %1 has the same value all through the template.").arg(name);
    return QString();
}

void smooth(SignalTemplateDataObject& signal, const PatternRequest& request)
{
    if (request.m_SmoothingWindow <= 1)
        return;
    if (request.m_IsCentred)
        signal.SmoothSignalCentred(request.m_SmoothingWindow);
    else
        signal.SmoothSignal(request.m_SmoothingWindow);
}

// The signals that are resampled; none when one of them can't be had.
Signals takeSignals(DataSet* dataSet, const PatternRequest& request)
{
    Signals taken;
    for (const int attribute : request.m_Attributes) {
        auto signal = std::make_unique<SignalTemplateDataObject>();
        if (!signal->SetSignal(dataSet, attribute, request.m_From, request.m_To))
            return {};
        signal->setAttributeName(dataSet->GetAttributeName(attribute));
        smooth(*signal, request);
        taken.push_back(std::move(signal));
    }
    return taken;
}

} // namespace

bool IsPatternTooLong(const PatternRequest& request)
{
    const qint64 rows = request.m_To - request.m_From;
    qint64 stored = 0;
    for (const auto& [up, down] : request.m_Factors) {
        if (UpsampledLength(rows, up, down) > MaxSignalLength)
            return true;
        stored += ResampledLength(rows, up, down) * request.m_Attributes.size();
        if (stored > MaxSignalLength)
            return true;
    }
    return false;
}

QString FindRowFault(const DataSet& dataSet, const PatternRequest& request)
{
    for (const int attribute : request.m_Attributes) {
        QString fault = findFault(dataSet.GetColumn(attribute).Part(request.m_From, request.m_To),
                                  dataSet.GetAttributeName(attribute));
        if (!fault.isEmpty())
            return fault;
    }
    return QString();
}

QString FindPatternFault(const PatternsDataObject& pattern)
{
    for (const auto* collection : pattern.GetSignalCollections()) {
        for (const auto* signal : collection->GetSignals()) {
            QString fault = findFault(signal->GetValues(), signal->GetAttributeName());
            if (!fault.isEmpty())
                return fault;
        }
    }
    return QString();
}

std::unique_ptr<PatternsDataObject> MakePattern(DataSet* dataSet, const PatternRequest& request)
{
    if (IsPatternTooLong(request))
        return nullptr;
    const Signals taken = takeSignals(dataSet, request);
    if (int(taken.size()) != request.m_Attributes.size())
        return nullptr;
    auto pattern = std::make_unique<PatternsDataObject>(request.m_CollectionId, request.m_Name,
                                                        request.m_Desc);
    pattern->SetOrigin(MakeOrigin(*dataSet, request.m_From, request.m_To));
    for (const auto& [up, down] : request.m_Factors) {
        const float factor = float(up) / float(down);
        auto* collection = new SignalTemplateCollectionDataObject(double(factor));
        pattern->AddSignalCollection(collection);
        for (const auto& signal : taken)
            collection->AddSignal(signal->resampledCopy(up, down).release());
    }
    return pattern;
}
