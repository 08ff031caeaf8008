#pragma once

#include <QDir>
#include <QObject>
#include <QTimer>

class CutCollection;
class DataSet;
class LabelCollection;

/// Counts how often results are moved into behaviours, and ticks for a survey that writes nothing
/// yet.
class SurveyResultWriter : public QObject
{
    Q_OBJECT
public:
    explicit SurveyResultWriter(QObject* parent = nullptr);

    void SetDataSet(DataSet* dataSet) { m_DataSet = dataSet; }
    void SetCutCollection(CutCollection* cuts) { m_CutCollection = cuts; }
    void SetLabelCollection(LabelCollection* labels) { m_LabelCollection = labels; }

    /// Ticks every half minute from now on.
    void Start();
    int GetMoveCount() const { return m_Moves; }

public slots:
    /// Counts a move, once there are data, segments and labels. The behaviour does not matter.
    void WriteLabels(const QString& alias);
    /// The tick; it writes nothing, so a survey leaves no files behind yet.
    void WriteLabels();

private:
    DataSet* m_DataSet = nullptr;
    CutCollection* m_CutCollection = nullptr;
    LabelCollection* m_LabelCollection = nullptr;
    int m_Moves = 0;
    QString m_Folder = QStringLiteral("/results/");
    QDir m_Directory;
    QTimer m_Timer;
};
