#include "attributesmenu.h"

#include "dataset.h"
#include "vizattributeaction.h"

void AttributesMenu::SetDataSet(const DataSet* dataSet)
{
    clear();
    for (int i = 0; dataSet && i < dataSet->GetAttributeCount(); ++i)
        AddAttribute(i, dataSet->GetAttributeName(i));
}

void AttributesMenu::AddAttribute(int index, const QString& name)
{
    auto* action = new VizAttributeAction(index, name, this);
    action->setCheckable(true);
    connect(action, &VizAttributeAction::triggered, this, &AttributesMenu::AttributeToggled);
    addAction(action);
}
