#pragma once

#include "liverecording.h"
#include <QCoreApplication>
#include <QPointer>
#include <QString>
#include <QWidget>
#include <optional>
#include <vector>

struct CutReview;
struct RowSpan;

/// Cuts a recording by itself, from the shape of its attributes: asks the user in a dialog, finds
/// the rows and cuts there. A cut that the collection refuses is passed over.
class CutAutomation
{
    Q_DECLARE_TR_FUNCTIONS(CutAutomation)
public:
    static constexpr int MethodCount = 5;
    static constexpr int ManyCuts = 10'000;

    /// Dialogs open on top of parent.
    explicit CutAutomation(QWidget* parent = nullptr) : m_Parent(parent) {}

    void setDataSet(const DataSet* dataSet) { m_DataSet = dataSet; }
    void setCutCollection(CutCollection* cuts) { m_CutCollection = cuts; }

    /// Runs the method with that number. Asks before it makes more than ManyCuts cuts, or cuts
    /// inside labels. True also when the user cancels, or stops the work, after which all segments
    /// are as before. False, with an error message, without a data set or cut
    /// collection; false and no new message for an unknown method.
    bool generateCuts(int method);
    /// The name of a method for the user; "Error" for an unknown one.
    static QString getMethodName(int method);
    QString getErrorMessage() const { return m_ErrorMessage; }

private:
    void cutAtImportantPoints();
    void cutPeriodically();
    void cutAtSharpTransitions();
    void cutAtExtrema();
    void insertAt(std::vector<int> rows);
    void insertRanges(std::vector<RowSpan> ranges);
    // Asks where so many cuts, or those inside labels, ask for it. The places of the cuts that are
    // to be left out; none when nothing is to be cut.
    std::optional<std::vector<int>> askAbout(const std::vector<RowSpan>& cuts);
    std::optional<std::vector<int>> askAboutLabels(const CutReview& review);

    QPointer<QWidget> m_Parent;
    const DataSet* m_DataSet = nullptr;
    CutCollection* m_CutCollection = nullptr;
    QString m_ErrorMessage;
};

/// Runs a method of automatic cutting on a recording; a failure is told to the user.
void CutByItself(const SharedRecording& recording, QWidget* parent, int method);
