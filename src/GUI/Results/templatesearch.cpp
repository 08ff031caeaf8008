#include "templatesearch.h"

#include "cutsegment.h"
#include "resultsearchoptiondialog.h"
#include "ruleassociationwizard.h"
#include "templatedialog.h"
#include "templatewizard.h"
#include "thresholdwizard.h"
#include <QPointer>

namespace
{

// On the heap: the parent may take the dialog with it.
template <class Dialog, class... Arguments>
bool runDialog(Arguments... arguments)
{
    const QPointer<Dialog> dialog(new Dialog(arguments...));
    const bool isAccepted = dialog->exec() == QDialog::Accepted && dialog;
    delete dialog;
    return isAccepted;
}

// The state of the segments that the user wants to search; false when he cancels.
bool askSearchMode(QWidget* parent, int& mode)
{
    const QPointer<ResultSearchOptionDialog> dialog(new ResultSearchOptionDialog(parent));
    const bool isAccepted = dialog->exec() == QDialog::Accepted && dialog;
    if (isAccepted)
        mode = dialog->GetSearchMode();
    delete dialog;
    return isAccepted;
}

} // namespace

std::unique_ptr<PatternsDataObject> SaveTemplate(QWidget* parent, DataSet* data, int from, int to)
{
    CutSegment rows(from, to);
    const QPointer<TemplateDialog> dialog(new TemplateDialog(data, &rows, parent));
    std::unique_ptr<PatternsDataObject> pattern;
    if (dialog->exec() == QDialog::Accepted && dialog)
        pattern = dialog->TakePattern();
    delete dialog;
    return pattern;
}

bool SearchForRows(QWidget* parent, DataSet* data, CutCollection* cuts, int from, int to)
{
    const auto pattern = SaveTemplate(parent, data, from, to);
    return pattern && runDialog<TemplateWizard>(data, cuts, int(CutSegment::SEGMENT_CUT),
                                                pattern.get(), parent);
}

bool SearchTemplates(QWidget* parent, DataSet* data, CutCollection* cuts)
{
    int mode = 0;
    return askSearchMode(parent, mode) && runDialog<TemplateWizard>(data, cuts, mode, parent);
}

bool SearchThresholds(QWidget* parent, DataSet* data, CutCollection* cuts)
{
    int mode = 0;
    return askSearchMode(parent, mode) && runDialog<ThresholdWizard>(data, cuts, mode, parent);
}

bool SearchRules(QWidget* parent, DataSet* data, CutCollection* cuts, LabelCollection* labels)
{
    int mode = 0;
    return askSearchMode(parent, mode) &&
           runDialog<RuleAssociationWizard>(data, cuts, labels, mode, parent);
}
