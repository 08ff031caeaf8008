#pragma once

#include "behaviorlabel.h"
#include <QDialog>
#include <QPointer>

class LabelCollection;
class QComboBox;

/// Asks for one of the behaviours of a recording.
class BehaviorSelectionDialog : public QDialog
{
    Q_OBJECT
public:
    explicit BehaviorSelectionDialog(QWidget* parent = nullptr);

    /// Offers the behaviours that are there now; null offers none.
    void SetLabelCollection(const LabelCollection* labels);
    /// Null without a choice, and when the chosen behaviour is gone.
    BehaviorLabel* GetSelectedLabel() const;

private:
    QComboBox* m_Behavior;
    // In the order of the box.
    QList<QPointer<BehaviorLabel>> m_Labels;
};
