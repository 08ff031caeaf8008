#include "attributematchdialog.h"

#include "attributebox.h"
#include "dataset.h"
#include "dialogbuttons.h"
#include "patternsdataobject.h"
#include "usererror.h"
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
    if (patterns.isEmpty())
        return names;
    for (const auto* collection : patterns.first()->GetSignalCollections()) {
        for (const auto* signal : collection->GetSignals())
            names.append(signal->GetAttributeName());
    }
    names.removeDuplicates();
    return names;
}

QLabel* makeNote(const QString& text)
{
    auto* note = new QLabel(text);
    note->setTextFormat(Qt::PlainText);
    note->setWordWrap(true);
    QFont bold = note->font();
    bold.setBold(true);
    note->setFont(bold);
    return note;
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
    const QString warning =
        patterns.isEmpty() ? QString() : FindRateMismatch(patterns.first()->GetOrigin(), *dataSet);
    if (!warning.isEmpty())
        layout->addWidget(makeNote(warning));
    layout->addWidget(group, 1);
    layout->addLayout(MakeDialogButtons(this, tr("Save")));
}

QWidget* AttributeMatchDialog::makeForm(const QStringList& names, const DataSet* dataSet)
{
    auto* widget = new QWidget;
    auto* form = new QFormLayout(widget);
    form->addRow(tr("Template Name"), new QLabel(tr("Data Name")));
    for (const QString& name : names)
        addChoice(form, name, dataSet);
    m_Names = names;
    return widget;
}

void AttributeMatchDialog::addChoice(QFormLayout* form, const QString& name, const DataSet* dataSet)
{
    auto* choice = new AttributeBox(dataSet, tr("The column to search for %1").arg(name));
    choice->FitToNames();
    choice->setPlaceholderText(tr("Choose a column"));
    // Not the first column, where there is none of that name.
    choice->setCurrentIndex(dataSet->GetAttributeIndex(name));
    m_Choices.insert(name, choice);
    form->addRow(name, choice);
    if (choice->currentIndex() == -1)
        form->addRow(QString(), makeNote(tr("This recording has no attribute %1.").arg(name)));
}

void AttributeMatchDialog::accept()
{
    for (const QString& name : qAsConst(m_Names)) {
        if (m_Choices[name]->currentIndex() != -1)
            continue;
        ShowUserError(this, tr("Error"), tr("Error: No column chosen for %1.").arg(name));
        m_Choices[name]->setFocus();
        return;
    }
    QDialog::accept();
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
