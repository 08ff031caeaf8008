#include "templatesearch.h"

#include "cutsegment.h"
#include "resultsearchoptiondialog.h"
#include "ruleassociationwizard.h"
#include "templatedialog.h"
#include "templatewizard.h"
#include "thresholdwizard.h"
#include <QPointer>
#include <optional>

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

// The state of the segments that the user wants to search; nothing when he cancels.
std::optional<CutSegment::SEGMENT_STATE> askSearchMode(QWidget* parent)
{
    const QPointer<ResultSearchOptionDialog> dialog(new ResultSearchOptionDialog(parent));
    std::optional<CutSegment::SEGMENT_STATE> mode;
    if (dialog->exec() == QDialog::Accepted && dialog)
        mode = dialog->GetSearchMode();
    delete dialog;
    return mode;
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
    return pattern &&
           runDialog<TemplateWizard>(data, cuts, CutSegment::SEGMENT_CUT, pattern.get(), parent);
}

bool SearchTemplates(QWidget* parent, DataSet* data, CutCollection* cuts)
{
    const auto mode = askSearchMode(parent);
    return mode && runDialog<TemplateWizard>(data, cuts, *mode, parent);
}

bool SearchThresholds(QWidget* parent, DataSet* data, CutCollection* cuts)
{
    const auto mode = askSearchMode(parent);
    return mode && runDialog<ThresholdWizard>(data, cuts, *mode, parent);
}

bool SearchRules(QWidget* parent, DataSet* data, CutCollection* cuts, LabelCollection* labels)
{
    const auto mode = askSearchMode(parent);
    return mode && runDialog<RuleAssociationWizard>(data, cuts, labels, *mode, parent);
}
