#pragma once

#include "cutsegment.h"
#include <QWizard>

class CutCollection;
class DataSet;
class LabelCollection;
class ResizeWizardPage;
class RuleAssociationFilterPage;

/// Finds what follows a sequence of behaviours and makes it into results. The cuts stay as they
/// are until the wizard is finished.
class RuleAssociationWizard : public QWizard
{
    Q_OBJECT
public:
    /// searchMode: the state of the segments to search, those without a label or earlier results.
    RuleAssociationWizard(DataSet* dataSet, CutCollection* cuts, LabelCollection* labels,
                          CutSegment::SEGMENT_STATE searchMode, QWidget* parent = nullptr);

protected:
    void initializePage(int id) override;

private:
    RuleAssociationFilterPage* m_Filter;
    ResizeWizardPage* m_Resize;
};
