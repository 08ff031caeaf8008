#include "dataprocessor.h"

#include "basicfunctiondialog.h"
#include "columnarithmetic.h"
#include "constantvaluedialog.h"
#include "correlation.h"
#include "derivative.h"
#include "derivativedialog.h"
#include "energy.h"
#include "energydialog.h"
#include "modaldialog.h"
#include "movingaverage.h"
#include "movingaveragedialog.h"
#include "normalize.h"
#include "normalizevectordialog.h"
#include "pitchrolldialog.h"
#include "rotation.h"
#include "rotationdialog.h"
#include "staticdynamicaccdialog.h"
#include "thresholddialog.h"
#include "tilt.h"
#include "vedba.h"
#include "vedbadialog.h"
#include "waitcursor.h"
#include <QLoggingCategory>
#include <algorithm>
#include <optional>

Q_LOGGING_CATEGORY(lcProcessor, "skerrymoor.processor", QtWarningMsg)

namespace
{

struct Operation {
    const char* m_Name;
    bool (DataProcessor::*m_Run)();
};

// In the order of the menu.
constexpr Operation OPERATIONS[] = {
    {QT_TRANSLATE_NOOP("DataProcessor", "Moving Average"), &DataProcessor::movingAverage},
    // Stands in the menu and does nothing: the entries behind it have their numbers by it.
    {QT_TRANSLATE_NOOP("DataProcessor", "ODBA"), nullptr},
    {QT_TRANSLATE_NOOP("DataProcessor", "Basic Function"), &DataProcessor::basicFunction},
    {QT_TRANSLATE_NOOP("DataProcessor", "Derivative"), &DataProcessor::derivative},
    {QT_TRANSLATE_NOOP("DataProcessor", "Normalize"), &DataProcessor::normalize},
    {QT_TRANSLATE_NOOP("DataProcessor", "Normalize Vector"), &DataProcessor::normalizeVector},
    {QT_TRANSLATE_NOOP("DataProcessor", "VeDBA"), &DataProcessor::vedba},
    {QT_TRANSLATE_NOOP("DataProcessor", "Pitch and Roll"), &DataProcessor::pitchRoll},
    {QT_TRANSLATE_NOOP("DataProcessor", "Static && Dynamic Acceleration"),
     &DataProcessor::staticDynAcc},
};

static_assert(std::size(OPERATIONS) == DataProcessor::OperationCount);

bool isOperation(int index)
{
    return 0 <= index && index < DataProcessor::OperationCount;
}

template <class Dialog>
using Params = decltype(std::declval<Dialog>().GetParams());

// What the user chose, nothing on Cancel.
template <class Dialog, class Start = Params<Dialog>>
std::optional<Params<Dialog>> ask(const DataSet& dataSet, QWidget* parent)
{
    ModalDialog<Dialog> dialog(dataSet, Start(), parent);
    if (!dialog.IsAccepted())
        return std::nullopt;
    return dialog->GetParams();
}

// What the dialog showed when it was closed, by Cancel too; nothing when it went with its window.
template <class Dialog>
std::optional<Params<Dialog>> askWithoutCancel(const DataSet& dataSet, QWidget* parent)
{
    ModalDialog<Dialog> dialog(dataSet, Params<Dialog>(), parent);
    dialog.Run();
    if (!dialog.Get())
        return std::nullopt;
    return dialog->GetParams();
}

} // namespace

QString DataProcessor::getOperationName(int index)
{
    return isOperation(index) ? tr(OPERATIONS[index].m_Name) : QString();
}

bool DataProcessor::runOperation(int index)
{
    m_AddedAttributes.clear();
    if (!isOperation(index) || !OPERATIONS[index].m_Run)
        return false;
    return (this->*OPERATIONS[index].m_Run)();
}

bool DataProcessor::movingAverage()
{
    if (!hasData())
        return false;
    const auto params = ask<MovingAverageDialog>(*m_DataSet, m_Parent);
    if (!params)
        return false;
    const WaitCursor wait;
    if (computeMovingAverage(params->m_Name, params->m_Attribute, params->m_Window) < 0)
        return false;
    m_DataSet->ComputeRanges();
    return true;
}

bool DataProcessor::basicFunction()
{
    if (!hasData())
        return false;
    const auto params = ask<BasicFunctionDialog>(*m_DataSet, m_Parent);
    if (!params || !hasAttributes({params->m_First, params->m_Second}))
        return false;
    return finishWith(params->m_Name, [&] {
        return BasicFunction(*m_DataSet, params->m_First, params->m_Operator, params->m_Second);
    });
}

bool DataProcessor::derivative()
{
    if (!hasData())
        return false;
    const auto params = ask<DerivativeDialog>(*m_DataSet, m_Parent);
    if (!params || !hasAttributes({params->m_Attribute}))
        return false;
    const WaitCursor wait;
    DataColumn differences = ForwardDifferences(*m_DataSet, params->m_Attribute);
    m_DataSet->AddAttribute(params->m_Name, ATTRIBUTE_OTHER);
    m_AddedAttributes.append({m_DataSet->GetAttributeCount() - 1, params->m_Name});
    AppendDerivative(*m_DataSet, std::move(differences));
    m_DataSet->ComputeRanges();
    return true;
}

bool DataProcessor::normalize()
{
    if (!hasData())
        return false;
    // The dialog of the derivative, its heading too: the user reads "Derivative".
    const auto params = ask<DerivativeDialog>(*m_DataSet, m_Parent);
    if (!params || !hasAttributes({params->m_Attribute}))
        return false;
    return finishWith(params->m_Name,
                      [&] { return Normalize(m_DataSet->GetColumn(params->m_Attribute)); });
}

bool DataProcessor::normalizeVector()
{
    if (!hasData())
        return false;
    const auto vector = ask<NormalizeVectorDialog>(*m_DataSet, m_Parent);
    if (!vector || !hasVector(*vector))
        return false;
    return finishWith(namesOf(*vector, QStringLiteral("_norm")),
                      [&] { return NormalizeVector(*m_DataSet, *vector); });
}

bool DataProcessor::energy()
{
    if (!hasData())
        return false;
    const auto params = ask<EnergyDialog>(*m_DataSet, m_Parent);
    if (!params || !hasAttributes({params->m_Attribute}))
        return false;
    return finishWith(params->m_Name, [&] {
        return Energy(m_DataSet->GetColumn(params->m_Attribute), params->m_Window);
    });
}

bool DataProcessor::threshold()
{
    if (!hasData())
        return false;
    const auto params = ask<ThresholdDialog>(*m_DataSet, m_Parent);
    if (!params || !hasAttributes({params->m_Attribute}))
        return false;
    return finishWith(params->m_Name, [&] {
        return Threshold(*m_DataSet, params->m_Attribute, params->m_Threshold);
    });
}

bool DataProcessor::pitchRoll()
{
    if (!hasData())
        return false;
    const auto params = ask<PitchRollDialog, bool>(*m_DataSet, m_Parent);
    if (!params)
        return true;
    if (!hasVector(params->m_Acceleration))
        return false;
    return finishWith({StandardAttributeName(STANDARD_PITCH), StandardAttributeName(STANDARD_ROLL)},
                      [&] { return PitchAndRoll(*m_DataSet, params->m_Acceleration); });
}

bool DataProcessor::rotate()
{
    if (!hasData())
        return false;
    const auto params = ask<RotationDialog>(*m_DataSet, m_Parent);
    if (!params)
        return true;
    const VectorAttributes& vector = params->m_Vector;
    if (!hasVector(vector) || !hasAttributes({params->m_Pitch, params->m_Roll}))
        return false;
    return finishWith(namesOf(vector, QStringLiteral("_Rotated")), [&] {
        return RotateVector(*m_DataSet, vector, params->m_Pitch, params->m_Roll);
    });
}

bool DataProcessor::vedba()
{
    if (!hasData())
        return false;
    const auto params = askWithoutCancel<VedbaDialog>(*m_DataSet, m_Parent);
    return params && hasVector(params->m_Dynamic) &&
           finishWith(params->m_Name, [&] { return Vedba(*m_DataSet, params->m_Dynamic); });
}

bool DataProcessor::staticDynAcc()
{
    if (!hasData())
        return false;
    const auto params = askWithoutCancel<StaticDynamicAccDialog>(*m_DataSet, m_Parent);
    if (!params || !hasVector(params->m_Acceleration))
        return false;
    const VectorAttributes& acceleration = params->m_Acceleration;
    const int window = params->m_Window;
    const WaitCursor wait;
    const int x = computeMovingAverage(QStringLiteral("Static X Acc"), acceleration.m_X, window);
    const int y = computeMovingAverage(QStringLiteral("Static Y Acc"), acceleration.m_Y, window);
    const int z = computeMovingAverage(QStringLiteral("Static Z Acc"), acceleration.m_Z, window);
    computeDifference(QStringLiteral("Dynamic X Acc"), acceleration.m_X, x);
    computeDifference(QStringLiteral("Dynamic Y Acc"), acceleration.m_Y, y);
    computeDifference(QStringLiteral("Dynamic Z Acc"), acceleration.m_Z, z);
    m_DataSet->ComputeRanges();
    return true;
}

bool DataProcessor::constantValue()
{
    if (!hasData())
        return false;
    const auto params = askWithoutCancel<ConstantValueDialog>(*m_DataSet, m_Parent);
    if (!params)
        return false;
    return finishWith(params->m_Name,
                      [&] { return ConstantValue(m_DataSet->GetRowCount(), params->m_Value); });
}

int DataProcessor::computeMovingAverage(const QString& name, int attribute, int window)
{
    if (!hasData() || !hasAttributes({attribute}))
        return -1;
    return addColumn(name, MovingAverage(m_DataSet->GetColumn(attribute), window));
}

int DataProcessor::computeDifference(const QString& name, int attributeA, int attributeB)
{
    if (!hasData() || !hasAttributes({attributeA, attributeB}))
        return -1;
    return addColumn(name, Difference(*m_DataSet, attributeA, attributeB));
}

double DataProcessor::correlateRanges(const DataSet* dataSet, int attribute, int startA, int endA,
                                      int startB, int endB)
{
    return dataSet ? CorrelateRanges(*dataSet, attribute, startA, endA, startB, endB) : 0.0;
}

bool DataProcessor::hasData() const
{
    if (!m_DataSet)
        qCDebug(lcProcessor, "No data file specified. Returning.");
    return m_DataSet;
}

bool DataProcessor::hasAttributes(std::initializer_list<int> attributes) const
{
    const int count = m_DataSet->GetAttributeCount();
    return std::all_of(attributes.begin(), attributes.end(),
                       [=](int attribute) { return 0 <= attribute && attribute < count; });
}

bool DataProcessor::hasVector(const VectorAttributes& vector) const
{
    return hasAttributes({vector.m_X, vector.m_Y, vector.m_Z});
}

int DataProcessor::addColumn(const QString& name, DataColumn&& column)
{
    const int index = m_DataSet->AddColumn(name, ATTRIBUTE_OTHER, std::move(column));
    m_AddedAttributes.append({index, name});
    return index;
}

bool DataProcessor::finishWith(const QString& name, const std::function<DataColumn()>& compute)
{
    const WaitCursor wait;
    addColumn(name, compute());
    m_DataSet->ComputeRanges();
    return true;
}

bool DataProcessor::finishWith(const QStringList& names,
                               const std::function<std::vector<DataColumn>()>& compute)
{
    const WaitCursor wait;
    std::vector<DataColumn> columns = compute();
    for (int i = 0; i < names.size(); ++i)
        addColumn(names[i], std::move(columns[size_t(i)]));
    m_DataSet->ComputeRanges();
    return true;
}

QStringList DataProcessor::namesOf(const VectorAttributes& vector, const QString& ending) const
{
    return {m_DataSet->GetAttributeName(vector.m_X) + ending,
            m_DataSet->GetAttributeName(vector.m_Y) + ending,
            m_DataSet->GetAttributeName(vector.m_Z) + ending};
}

void DeriveAttributes(const SharedRecording& recording, QWidget* parent, int operation)
{
    DataProcessor processor(parent);
    processor.setDataSet(recording->GetDataSet());
    if (processor.runOperation(operation))
        recording->Tell(LiveRecording::ATTRIBUTES);
}
