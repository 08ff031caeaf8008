#pragma once

#include "behaviorlabel.h"
#include <QDialog>
#include <QPointer>

class DataSet;
class QLineEdit;

/// What the values of an attribute come to over all instances of a behaviour.
class BehaviorClassStatisticsWidget : public QDialog
{
    Q_OBJECT
public:
    explicit BehaviorClassStatisticsWidget(DataSet* dataSet, QWidget* parent = nullptr);

    /// The fields are filled as soon as there are a behaviour and an attribute.
    void SetBehavior(BehaviorLabel* behavior);
    void SetAttribute(int attribute);

public slots:
    /// Writes the attribute's values, a column per instance, to a file that the user picks.
    void exportSideBySide();

private:
    QLayout* makeFields();
    bool isComplete() const { return m_Behavior && m_Attribute >= 0; }
    void fillFields();

    DataSet* m_DataSet;
    QPointer<BehaviorLabel> m_Behavior;
    int m_Attribute = -1;
    QLineEdit* m_Name = nullptr;
    QLineEdit* m_InstanceCount = nullptr;
    QLineEdit* m_Maximum = nullptr;
    QLineEdit* m_Minimum = nullptr;
    QLineEdit* m_Mean = nullptr;
};
