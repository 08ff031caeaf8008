#pragma once

#include "liverecording.h"
#include <QCoreApplication>
#include <QString>
#include <functional>
#include <vector>

class Progress;
class QWidget;

/// Cuts a recording by itself, from the shape of its attributes: asks the user in a dialog, finds
/// the rows and cuts there. A cut that the collection refuses is passed over.
class CutAutomation
{
    Q_DECLARE_TR_FUNCTIONS(CutAutomation)
public:
    static constexpr int MethodCount = 5;

    /// Dialogs open on top of parent.
    explicit CutAutomation(QWidget* parent = nullptr) : m_Parent(parent) {}

    void setDataSet(const DataSet* dataSet) { m_DataSet = dataSet; }
    void setCutCollection(CutCollection* cuts) { m_CutCollection = cuts; }

    /// Runs the method with that number; true also when the user cancels. False, with an error
    /// message, without a data set or cut collection; false and no new message for an unknown
    /// method.
    bool generateCuts(int method);
    /// The name of a method for the user; "Error" for an unknown one.
    static QString getMethodName(int method);
    QString getErrorMessage() const { return m_ErrorMessage; }

private:
    void cutAtImportantPoints();
    void cutPeriodically();
    void cutAtSharpTransitions();
    void cutAtExtrema();
    void insertCuts(const std::vector<int>& rows, Progress& progress);
    // All cuts, insert(0) to insert(count - 1), or none when the user stops.
    void insertCuts(int count, Progress& progress, const std::function<void(int)>& insert);

    QWidget* m_Parent;
    const DataSet* m_DataSet = nullptr;
    CutCollection* m_CutCollection = nullptr;
    QString m_ErrorMessage;
};

/// Runs a method of automatic cutting on a recording; a failure is told to the user.
void CutByItself(const SharedRecording& recording, QWidget* parent, int method);
