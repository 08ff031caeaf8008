#pragma once

#include "liverecording.h"
#include <QDialog>

class AttributeBox;
class DataSet;
class QLineEdit;

/// Minimum, maximum and mean of an attribute over a range of rows.
class NodeStatsWidget : public QDialog
{
    Q_OBJECT
public:
    explicit NodeStatsWidget(DataSet* dataSet, QWidget* parent = nullptr);

    /// Takes the rows from up to, but without, to; all rows, as at first, when one of them is
    /// negative.
    void SetRange(int from, int to);

public slots:
    void computeStats(int attribute);
    /// Writes all attributes of the range to a file that the user picks.
    void exportData();

private:
    QLayout* makeFields();

    DataSet* m_DataSet;
    int m_From = -1;
    int m_To = -1;
    int m_Attribute = 0;
    AttributeBox* m_Attributes;
    QLineEdit* m_Minimum = nullptr;
    QLineEdit* m_Maximum = nullptr;
    QLineEdit* m_Mean = nullptr;
};

/// Shows the dialog for all rows of a recording.
void ShowDataStatistics(const SharedRecording& recording, QWidget* parent);
