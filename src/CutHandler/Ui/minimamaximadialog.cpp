#include "minimamaximadialog.h"

#include <QComboBox>
#include <QDoubleSpinBox>

MinimaMaximaDialog::MinimaMaximaDialog(const MinimaMaximaParameters& start, const DataSet& dataSet,
                                       QWidget* parent)
    : FormDialog(tr("<h2>Local Minima / Maxima Cuts</h2>"), parent),
      m_Attribute(addAttribute(tr("Attribute"), dataSet, start.m_Attribute,
                               tr("The curve to cut at its minima and maxima"))),
      m_Persistence(addReal(tr("Persistance"), start.m_Persistence,
                            tr("The least rise from a minimum to its maximum that counts")))
{
    addButtons();
}

MinimaMaximaParameters MinimaMaximaDialog::GetParameters() const
{
    return {m_Attribute->currentIndex(), m_Persistence->value()};
}
