#include "behaviorchoice.h"

#include "behaviorselectiondialog.h"
#include "labelcollection.h"
#include "modaldialog.h"
#include "usererror.h"

bool CheckBehaviors(const LabelCollection* labels, QWidget* parent)
{
    if (labels && labels->GetLabelCount() > 0)
        return true;
    ShowUserError(parent, QDialog::tr("Move Labels"),
                  QDialog::tr("Error: No behavior collections present."));
    return false;
}

BehaviorLabel* AskForBehavior(const LabelCollection* labels, QWidget* parent)
{
    if (!CheckBehaviors(labels, parent))
        return nullptr;
    ModalDialog<BehaviorSelectionDialog> dialog(parent);
    dialog->setWindowTitle(QDialog::tr("Move Labels"));
    dialog->SetLabelCollection(labels);
    return dialog.IsAccepted() ? dialog->GetSelectedLabel() : nullptr;
}
