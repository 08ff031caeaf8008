#include "attributematchdialog.h"

#include "attributebox.h"
#include "dataset.h"
#include "dialogbuttons.h"
#include "patternsdataobject.h"
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>

namespace
{

QStringList templateAttributes(const QList<PatternsDataObject*>& patterns)
{
    QStringList names;
    if (patterns.isEmpty() || patterns.first()->GetSignalCollections().isEmpty())
        return names;
    for (const auto* signal : patterns.first()->GetSignalCollections().first()->GetSignals())
        names.append(signal->GetAttributeName());
    return names;
}

QComboBox* makeChoice(const QString& name, const DataSet* dataSet)
{
    auto* choice = new AttributeBox(dataSet, QDialog::tr("The column to search for %1").arg(name));
    choice->SetAttribute(dataSet->GetAttributeIndex(name));
    return choice;
}

} // namespace

AttributeMatchDialog::AttributeMatchDialog(const QList<PatternsDataObject*>& patterns,
                                           DataSet* dataSet, QWidget* parent)
    : QDialog(parent)
{
    setWindowTitle(tr("Match Attributes"));
    auto* group = new QGroupBox(tr("Match Attributes"));
    auto* scroll = new QScrollArea;
    scroll->setWidget(makeForm(templateAttributes(patterns), dataSet));
    scroll->setWidgetResizable(true);
    (new QVBoxLayout(group))->addWidget(scroll);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(tr("<h2>Match Attributes</h2>")));
    layout->addWidget(group, 1);
    layout->addLayout(MakeDialogButtons(this, tr("Save")));
}

QWidget* AttributeMatchDialog::makeForm(const QStringList& names, const DataSet* dataSet)
{
    auto* widget = new QWidget;
    auto* form = new QFormLayout(widget);
    form->addRow(tr("Template Name"), new QLabel(tr("Data Name")));
    for (const QString& name : names) {
        QComboBox* choice = makeChoice(name, dataSet);
        form->addRow(name, choice);
        m_Choices.insert(name, choice);
    }
    return widget;
}

QHash<QString, int> AttributeMatchDialog::GetAttributeMap() const
{
    QHash<QString, int> map;
    for (auto choice = m_Choices.begin(); choice != m_Choices.end(); ++choice) {
        if ((*choice)->currentIndex() != -1)
            map.insert(choice.key(), (*choice)->currentData().toInt());
    }
    return map;
}
