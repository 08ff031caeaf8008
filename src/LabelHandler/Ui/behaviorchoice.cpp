#include "behaviorchoice.h"

#include "behaviorselectiondialog.h"
#include "labelcollection.h"
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
    // On the heap: the parent may take the dialog with it.
    const QPointer<BehaviorSelectionDialog> dialog(new BehaviorSelectionDialog(parent));
    dialog->setWindowTitle(QDialog::tr("Move Labels"));
    dialog->SetLabelCollection(labels);
    const bool isAccepted = dialog->exec() == QDialog::Accepted;
    BehaviorLabel* label = isAccepted && dialog ? dialog->GetSelectedLabel() : nullptr;
    delete dialog;
    return label;
}

bool HasBehavior(const LabelCollection* labels, const BehaviorLabel* label)
{
    for (int i = 0; labels && i < labels->GetLabelCount(); ++i) {
        if (labels->GetLabel(i) == label)
            return true;
    }
    return false;
}
