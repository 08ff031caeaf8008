#include "attributesmenu.h"

#include "dataset.h"
#include "vizattributeaction.h"

void AttributesMenu::SetRecording(LiveRecording* recording)
{
    if (m_Recording)
        m_Recording->disconnect(this);
    m_Recording = recording;
    clear();
    updateEntries();
    if (recording)
        connect(recording, &LiveRecording::AttributesChanged, this, &AttributesMenu::updateEntries);
}

// Entries up to the first attribute that has come or gone stay as they are. Behind it an entry
// keeps its mark by its name.
void AttributesMenu::updateEntries()
{
    const QStringList names =
        m_Recording ? m_Recording->GetDataSet()->GetAttributeNames() : QStringList();
    int same = 0;
    while (same < names.size() && same < actions().size() &&
           actions().at(same)->text() == names.at(same))
        ++same;
    QStringList checked;
    while (actions().size() > same) {
        QAction* last = actions().last();
        if (last->isChecked())
            checked.append(last->text());
        removeAction(last);
        last->deleteLater();
    }
    for (int i = same; i < names.size(); ++i) {
        auto* action = new VizAttributeAction(i, names.at(i), this);
        action->setCheckable(true);
        action->setChecked(checked.contains(names.at(i)));
        connect(action, &VizAttributeAction::triggered, this, &AttributesMenu::AttributeToggled);
        addAction(action);
    }
}
