#pragma once

#include "attributecolumns.h"
#include "cutcollection.h"
#include "labelcollection.h"
#include "labelling.h"
#include <memory>

class DataSet;

/// What one import brings to life: the data, its segments and its behaviours.
class Recording
{
public:
    /// Takes the ranges of the data; one plain segment covers all rows.
    explicit Recording(std::unique_ptr<DataSet> dataSet);
    ~Recording();

    DataSet* GetDataSet() const { return m_DataSet.get(); }
    CutCollection* GetCutCollection() { return &m_CutCollection; }
    LabelCollection* GetLabelCollection() { return &m_LabelCollection; }
    AttributeColumns& GetColumns() { return m_Columns; }
    Labelling GetLabelling() { return {&m_CutCollection, &m_LabelCollection}; }

private:
    std::unique_ptr<DataSet> m_DataSet;
    AttributeColumns m_Columns;
    CutCollection m_CutCollection;
    LabelCollection m_LabelCollection;
};
