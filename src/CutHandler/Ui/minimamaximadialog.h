#pragma once

#include "cutparameters.h"
#include "formdialog.h"
#include "largestrange.h"
#include <QComboBox>
#include <QDoubleSpinBox>

/// Asks for what cutting at local minima and maxima needs.
class MinimaMaximaDialog : public FormDialog
{
    Q_OBJECT
public:
    MinimaMaximaDialog(const MinimaMaximaParameters& start, const DataSet& dataSet,
                       QWidget* parent = nullptr)
        : FormDialog(tr("<h2>Local Minima / Maxima Cuts</h2>"), parent),
          m_Attribute(addAttribute(tr("Attribute"), dataSet, start.m_Attribute,
                                   tr("The curve to cut at its minima and maxima"))),
          m_Persistence(
              addPreciseReal(tr("Persistance"), start.m_Persistence, LargestRange(dataSet),
                             tr("The least rise from a minimum to its maximum that counts")))
    {
        addButtons();
    }

    MinimaMaximaParameters GetParameters() const
    {
        return {m_Attribute->currentIndex(), m_Persistence->value()};
    }

private:
    QComboBox* m_Attribute;
    QDoubleSpinBox* m_Persistence;
};
