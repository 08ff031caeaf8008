#include "localvariancedialog.h"

#include "largestrange.h"
#include <QComboBox>
#include <QDoubleSpinBox>
#include <algorithm>

namespace
{

// No variance exceeds the square of the range, which is the smaller one below 1.
double largestVariance(const DataSet& dataSet)
{
    const double range = LargestRange(dataSet);
    return std::max(range, range * range);
}

} // namespace

LocalVarianceDialog::LocalVarianceDialog(const LocalVarianceParameters& start,
                                         const DataSet& dataSet, QWidget* parent)
    : FormDialog(tr("<h2>Local Variance</h2>"), parent),
      m_X(addAttribute(tr("X Acc Attribute"), dataSet, start.m_X, tr("Acceleration along X"))),
      m_Y(addAttribute(tr("Y Acc Attribute"), dataSet, start.m_Y, tr("Acceleration along Y"))),
      m_Z(addAttribute(tr("Z Acc Attribute"), dataSet, start.m_Z, tr("Acceleration along Z"))),
      m_SmoothingWindow(addRowCount(tr("Smoothing Window"), start.m_SmoothingWindow, dataSet,
                                    tr("Rows that are averaged"))),
      m_SmoothingOverlap(addRowCount(tr("Smoothing Window Overlap"), start.m_SmoothingOverlap,
                                     dataSet,
                                     tr("Rows from the start of one average to the next one's"))),
      m_VarianceWindow(addRowCount(tr("Variance Window Size"), start.m_VarianceWindow, dataSet,
                                   tr("Rows over which the variance is taken"))),
      m_Threshold(addPreciseReal(tr("Variance Threshold"), start.m_Threshold,
                                 largestVariance(dataSet),
                                 tr("Variance below this does not count")))
{
    addButtons();
}

LocalVarianceParameters LocalVarianceDialog::GetParameters() const
{
    return {m_X->currentIndex(),        m_Y->currentIndex(),         m_Z->currentIndex(),
            m_SmoothingWindow->value(), m_SmoothingOverlap->value(), m_VarianceWindow->value(),
            m_Threshold->value()};
}
