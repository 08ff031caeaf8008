#pragma once

#include "liverecording.h"
#include <QDialog>
#include <vector>

class AxisRangeBox;
class QCheckBox;

/// The limits of every attribute's value axis, and whether its plot has a line at zero.
class AxesSettingsDialog : public QDialog
{
    Q_OBJECT
public:
    explicit AxesSettingsDialog(DataSet* dataSet, QWidget* parent = nullptr);

public slots:
    /// Makes every axis symmetric around zero; an axis wholly above zero starts at zero instead.
    void mirrorValues();
    /// Back to the limits of the data.
    void ResetValues();
    /// Stores all limits and zero lines in the data set and accepts. Refuses a minimum that the
    /// user put above its maximum.
    void adjustAxesValues();

private:
    struct Row {
        AxisRangeBox* m_Minimum;
        AxisRangeBox* m_Maximum;
        QCheckBox* m_Baseline;
    };
    QWidget* makeRows();
    QLayout* makeButtons();
    bool checkLimits();

    DataSet* m_DataSet;
    std::vector<Row> m_Rows;
};

/// Lets the user change the limits of the value axes.
void EditAxes(const SharedRecording& recording, QWidget* parent);
