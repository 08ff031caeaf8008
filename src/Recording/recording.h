#pragma once

#include "cutcollection.h"
#include "labelcollection.h"
#include <memory>

class DataSet;

/// What one import brings to life: the data, its segments and its behaviours. Held by the main
/// window until the next import and, beyond that, by every window that still shows it.
class Recording
{
public:
    /// Takes ownership of the data set. One plain segment covers all rows.
    explicit Recording(DataSet* dataSet);
    ~Recording();

    DataSet* GetDataSet() const { return m_DataSet.get(); }
    CutCollection* GetCutCollection() { return &m_CutCollection; }
    LabelCollection* GetLabelCollection() { return &m_LabelCollection; }

private:
    std::unique_ptr<DataSet> m_DataSet;
    CutCollection m_CutCollection;
    LabelCollection m_LabelCollection;
};
