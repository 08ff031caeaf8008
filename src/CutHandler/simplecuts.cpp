#include "simplecuts.h"

#include "dataset.h"
#include "persistenceextractor.h"

std::vector<int> PeriodicCuts(const DataSet& dataSet, const PeriodicCutParameters& parameters)
{
    std::vector<int> rows;
    if (parameters.m_CutSize < 1)
        return rows;
    for (qint64 row = parameters.m_CutSize; row < dataSet.GetRowCount();
         row += parameters.m_CutSize)
        rows.push_back(int(row));
    return rows;
}

std::vector<int> MinimaMaximaCuts(const DataSet& dataSet, const MinimaMaximaParameters& parameters,
                                  Progress& progress)
{
    std::vector<int> rows;
    if (parameters.m_Attribute < 0 || parameters.m_Attribute >= dataSet.GetAttributeCount())
        return rows;
    const ConstSpan<double> column = dataSet.GetColumn(parameters.m_Attribute);
    PersistenceExtractor persistence;
    persistence.extract(std::vector<float>(column.begin(), column.end()), progress);
    for (const PairedExtrema& pair : persistence.getPairs(float(parameters.m_Persistence))) {
        rows.push_back(pair.m_MaxIndex);
        rows.push_back(pair.m_MinIndex);
    }
    return rows;
}
