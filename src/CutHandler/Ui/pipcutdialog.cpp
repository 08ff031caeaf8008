#include "pipcutdialog.h"

#include "dataset.h"
#include "largestrange.h"
#include "pipextractor.h"
#include <QComboBox>
#include <QDoubleSpinBox>

namespace
{

// A Euclidean distance adds rows and values up, to both ends.
double largestDistance(const DataSet& dataSet)
{
    return 2.0 * (dataSet.GetRowCount() + LargestRange(dataSet));
}

QStringList names(QString (*nameOf)(int))
{
    return {nameOf(0), nameOf(1), nameOf(2)};
}

} // namespace

PipCutDialog::PipCutDialog(const PipCutParameters& start, const DataSet& dataSet, QWidget* parent)
    : FormDialog(tr("<h2>Perceptually Important Points (PIP) Cuts</h2>"), parent),
      m_Attribute(addAttribute(tr("Attribute"), dataSet, start.m_Attribute,
                               tr("The curve to cut where it departs most from straight lines"))),
      m_Measure(addChoice(tr("Distance Measure"), names(&PIPExtractor::GetMeasureName),
                          start.m_Measure, tr("How the distance from a line is measured"))),
      m_Stopping(addChoice(tr("Stopping Parameter"), names(&PIPExtractor::GetParameterName),
                           start.m_Stopping, tr("What ends the cutting"))),
      m_MinimumDistance(addPreciseReal(tr("Minimum Distance"), start.m_MinimumDistance,
                                       largestDistance(dataSet),
                                       tr("The cutting ends when no point is this far away"))),
      m_Partitions(addRowCount(tr("Number Partitions"), start.m_Partitions, dataSet,
                               tr("The cutting ends one split after this many")))
{
    setWindowTitle(tr("PIP Cut"));
    const auto showUse = [this](int stopping) {
        m_Partitions->setEnabled(stopping != PIPExtractor::MINIMUM_DISTANCE);
    };
    connect(m_Stopping, QOverload<int>::of(&QComboBox::currentIndexChanged), this, showUse);
    showUse(m_Stopping->currentIndex());
    addButtons();
}

PipCutParameters PipCutDialog::GetParameters() const
{
    return {m_Attribute->currentIndex(), m_Measure->currentIndex(), m_Stopping->currentIndex(),
            m_MinimumDistance->value(), m_Partitions->value()};
}
