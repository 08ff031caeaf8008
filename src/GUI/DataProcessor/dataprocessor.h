#pragma once

#include "derivedcolumn.h"
#include "liverecording.h"
#include <QCoreApplication>
#include <QList>
#include <QStringList>
#include <functional>
#include <initializer_list>

class QWidget;

/// An attribute that an operation has added to the data set.
struct AddedAttribute {
    int m_Index = -1;
    QString m_Name;
};

/// Adds derived attributes to a data set: each operation asks for its inputs in a modal dialog,
/// computes, appends the new attributes to every row and takes the ranges anew. Without a data
/// set, or where the data set lacks the attribute to read, it returns false and does nothing.
///
/// Made for one click on a menu: set the data set, run an operation, read the added attributes.
class DataProcessor
{
    Q_DECLARE_TR_FUNCTIONS(DataProcessor)
public:
    /// Those with a menu entry.
    static constexpr int OperationCount = 9;

    /// parent: the window that the dialogs stand on.
    explicit DataProcessor(QWidget* parent = nullptr) : m_Parent(parent) {}

    /// Not owned.
    void setDataSet(DataSet* dataSet) { m_DataSet = dataSet; }
    /// The text of a menu entry, 0 to 8; empty for any other index.
    static QString getOperationName(int index);
    /// Runs the operation of a menu entry and lists what it adds. False for an index without an
    /// operation, where nothing happens; else what the operation returns.
    bool runOperation(int index);
    QList<AddedAttribute> getAddedAttributes() const { return m_AddedAttributes; }

    // True when attributes were added; false when the user cancelled.
    bool movingAverage();
    bool basicFunction();
    bool derivative();
    bool normalize();
    bool normalizeVector();
    bool energy();
    bool threshold();

    // Cancel says true as well, with nothing in the list of added attributes.
    bool pitchRoll();
    bool rotate();

    // Cancel computes with what the dialog shows, as Compute does: there is no way back.
    bool vedba();
    bool staticDynAcc();
    bool constantValue();

    /// Appends the moving average of an attribute (see MovingAverage) and returns the index of
    /// the new attribute; -1 without a data set or attribute. The caller takes the ranges anew.
    int computeMovingAverage(const QString& name, int attribute, int window);
    /// The same for attribute A minus attribute B.
    int computeDifference(const QString& name, int attributeA, int attributeB);
    /// See CorrelateRanges; 0 without a data set.
    static double correlateRanges(const DataSet* dataSet, int attribute, int startA, int endA,
                                  int startB, int endB);

private:
    bool hasData() const;
    bool hasAttributes(std::initializer_list<int> attributes) const;
    bool hasVector(const VectorAttributes& vector) const;
    /// The index of the new attribute.
    int addColumn(const QString& name, DataColumn&& column);
    // Compute and add, take the ranges anew and return true.
    bool finishWith(const QString& name, const std::function<DataColumn()>& compute);
    bool finishWith(const QStringList& names,
                    const std::function<std::vector<DataColumn>()>& compute);
    QStringList namesOf(const VectorAttributes& vector, const QString& ending) const;

    QWidget* m_Parent;
    DataSet* m_DataSet = nullptr;
    QList<AddedAttribute> m_AddedAttributes;
};

/// Runs the operation of a menu entry on a recording.
void DeriveAttributes(const SharedRecording& recording, QWidget* parent, int operation);

/// The same for an operation of its own.
template <bool (DataProcessor::*operation)()>
void DeriveBy(const SharedRecording& recording, QWidget* parent)
{
    DataProcessor processor(parent);
    processor.setDataSet(recording->GetDataSet());
    if ((processor.*operation)())
        recording->Tell(LiveRecording::ATTRIBUTES);
}
