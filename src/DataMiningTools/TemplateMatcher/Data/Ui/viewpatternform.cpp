#include "viewpatternform.h"

#include "databasemessages.h"
#include "databasequery.h"
#include "oldlineplotwidget.h"
#include "rowlist.h"
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

ViewPatternForm::ViewPatternForm(std::unique_ptr<PatternsDataObject> pattern, QWidget* parent)
    : QDialog(parent), m_Pattern(std::move(pattern)), m_Templates(makeTemplates()),
      m_Signals(makeSignals())
{
    setWindowTitle(tr("Edit Pattern"));
    auto* lists = new QHBoxLayout;
    lists->addWidget(m_Templates, 1);
    lists->addWidget(m_Signals, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(tr("<h2>Edit Pattern</h2>")));
    layout->addLayout(makeFields());
    layout->addLayout(lists, 1);
    layout->addLayout(makeButtons());
    resize(560, 420);
    populateTemplates();
    m_Templates->setFocus();
}

QLayout* ViewPatternForm::makeFields()
{
    auto* form = new QFormLayout;
    const auto addRow = [form](const QString& caption, const QString& text) {
        auto* field = new QLineEdit(text);
        // What was typed here would be lost.
        field->setReadOnly(true);
        field->setCursorPosition(0);
        form->addRow(caption, field);
    };
    addRow(tr("Name:"), m_Pattern->GetName());
    addRow(tr("Description:"), m_Pattern->GetDesc());
    return form;
}

RowList* ViewPatternForm::makeTemplates()
{
    auto* list = new RowList(tr("Signal Collections"));
    auto* resample = list->AddButton(
        tr("Resample"), tr("Stored signals can't be resampled: add the template once more"),
        QString());
    resample->setEnabled(false);
    const auto* remove = list->AddRowButton(
        tr("Delete"), tr("Delete the signal collection and its signals for good"));
    connect(list, &RowList::RowChosen, this, &ViewPatternForm::populateSignals);
    connect(resample, &QPushButton::clicked, this, &ViewPatternForm::resampleTempate);
    connect(remove, &QPushButton::clicked, this, &ViewPatternForm::deleteTemplate);
    return list;
}

RowList* ViewPatternForm::makeSignals()
{
    auto* list = new RowList(tr("Signals"));
    const auto* view = list->AddRowButton(tr("View Signal"), tr("Show the signal as a line"));
    const auto* remove = list->AddRowButton(tr("Delete"), tr("Delete the signal for good"));
    connect(view, &QPushButton::clicked, this, &ViewPatternForm::viewSignal);
    connect(remove, &QPushButton::clicked, this, &ViewPatternForm::deleteSignal);
    return list;
}

QLayout* ViewPatternForm::makeButtons()
{
    auto* save = new QPushButton(tr("Save"));
    auto* cancel = new QPushButton(tr("Cancel"));
    save->setDefault(true);
    connect(save, &QPushButton::clicked, this, &ViewPatternForm::save);
    connect(cancel, &QPushButton::clicked, this, &ViewPatternForm::cancel);
    auto* row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(save);
    row->addWidget(cancel);
    return row;
}

void ViewPatternForm::populateTemplates()
{
    const auto collections =
        SignalTemplateCollectionDataObject::GetSignalsByPatternID(m_Pattern->GetId(), false);
    QVector<RowList::Row> rows;
    for (const auto* collection : collections)
        rows.append({collection->GetId(), QString::number(collection->GetFrequencyFactor()),
                     tr("Samples stored for one sample of the recording")});
    qDeleteAll(collections);
    if (!LastQueryError().isEmpty())
        ShowDatabaseError(this, tr("Error: The signal collections can't be read."));
    m_Templates->SetRows(rows);
    populateSignals(m_Templates->GetCurrentItem());
}

void ViewPatternForm::populateSignals(QListWidgetItem* collection)
{
    QVector<RowList::Row> rows;
    if (collection) {
        const auto found =
            SignalTemplateDataObject::GetSignalsByCollectionID(RowList::GetId(collection));
        for (const SignalTemplateDataObject* signal : found)
            rows.append({signal->GetId(), signal->GetAttributeName(),
                         tr("%1 values, mean %2, standard deviation %3")
                             .arg(signal->GetLength())
                             .arg(signal->GetMean())
                             .arg(signal->GetSd())});
        qDeleteAll(found);
        if (!LastQueryError().isEmpty())
            ShowDatabaseError(this, tr("Error: The signals can't be read."));
    }
    m_Signals->SetRows(rows);
}

void ViewPatternForm::deleteTemplate()
{
    if (DeleteCurrentRow(*m_Templates, &SignalTemplateCollectionDataObject::DeleteSignalTemplate,
                         tr("Delete the signal collection \"%1\" and all its signals?"),
                         tr("Signal Collection Deleted"),
                         tr("Signal Collection succesfully deleted")))
        populateTemplates();
}

void ViewPatternForm::deleteSignal()
{
    if (DeleteCurrentRow(*m_Signals, &SignalTemplateDataObject::DeleteSignal,
                         tr("Delete the signal \"%1\"?"), tr("Signal Template Deleted"),
                         tr("Signal template succesfully deleted")))
        populateSignals(m_Templates->GetCurrentItem());
}

void ViewPatternForm::viewSignal()
{
    const int id = m_Signals->GetCurrentId();
    if (id == -1)
        return;
    const std::unique_ptr<SignalTemplateDataObject> signal(SignalTemplateDataObject::GetSignal(id));
    if (!signal) {
        ShowDatabaseError(this, tr("Error: The signal can't be read."));
        return;
    }
    // A window of this form: while the form is modal, windows of others don't answer.
    auto* window = new OldLinePlotWidget(signal->GetValues(), signal->GetAttributeName(), this);
    window->setWindowFlag(Qt::Window);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->show();
}
