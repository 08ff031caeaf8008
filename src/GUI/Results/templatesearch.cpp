#include "templatesearch.h"

#include "cutsegment.h"
#include "modaldialog.h"
#include "resultsearchoptiondialog.h"
#include "ruleassociationwizard.h"
#include "templatedialog.h"
#include "templatewizard.h"
#include "thresholdwizard.h"
#include <optional>

namespace
{

// The state of the segments that the user wants to search; nothing when he cancels.
std::optional<CutSegment::SEGMENT_STATE> askSearchMode(QWidget* parent)
{
    ModalDialog<ResultSearchOptionDialog> dialog(parent);
    if (!dialog.IsAccepted())
        return std::nullopt;
    return dialog->GetSearchMode();
}

} // namespace

std::unique_ptr<PatternsDataObject> SaveTemplate(QWidget* parent, DataSet* data, int from, int to)
{
    CutSegment rows(from, to);
    ModalDialog<TemplateDialog> dialog(data, &rows, parent);
    return dialog.IsAccepted() ? dialog->TakePattern() : nullptr;
}

bool SearchForRows(QWidget* parent, DataSet* data, CutCollection* cuts, int from, int to)
{
    const auto pattern = SaveTemplate(parent, data, from, to);
    return pattern &&
           ModalDialog<TemplateWizard>(data, cuts, CutSegment::SEGMENT_CUT, pattern.get(), parent)
               .IsAccepted();
}

bool SearchTemplates(QWidget* parent, DataSet* data, CutCollection* cuts)
{
    const auto mode = askSearchMode(parent);
    return mode && ModalDialog<TemplateWizard>(data, cuts, *mode, parent).IsAccepted();
}

bool SearchThresholds(QWidget* parent, DataSet* data, CutCollection* cuts)
{
    const auto mode = askSearchMode(parent);
    return mode && ModalDialog<ThresholdWizard>(data, cuts, *mode, parent).IsAccepted();
}

bool SearchRules(QWidget* parent, DataSet* data, CutCollection* cuts, LabelCollection* labels)
{
    const auto mode = askSearchMode(parent);
    return mode &&
           ModalDialog<RuleAssociationWizard>(data, cuts, labels, *mode, parent).IsAccepted();
}
