#pragma once

#include "dataset.h"
#include <QComboBox>

/// A box of all attributes, whose indices are theirs; empty without a data set.
inline QComboBox* MakeAttributeBox(const DataSet* dataSet, const QString& toolTip)
{
    auto* box = new QComboBox;
    box->setToolTip(toolTip);
    // Not the width of the longest entry, which can be any name.
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(12);
    if (dataSet)
        box->addItems(dataSet->GetAttributeNames());
    return box;
}
