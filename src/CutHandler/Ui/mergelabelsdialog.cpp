#include "mergelabelsdialog.h"

#include "cutcollection.h"
#include "modaldialog.h"
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>

MergeLabelsDialog::MergeLabelsDialog(CutCollection* cuts, QWidget* parent)
    : QDialog(parent), m_CutCollection(cuts), m_Distance(new QSpinBox)
{
    setWindowTitle(tr("Merge Labels"));
    m_Distance->setMaximum(10000000);
    m_Distance->setToolTip(tr("Labels less than this many rows apart meet halfway; 0 takes all "
                              "merging back"));
    auto* compute = new QPushButton(tr("Compute"));
    compute->setDefault(true);
    auto* cancel = new QPushButton(tr("Cancel"));
    cancel->setToolTip(tr("Close; what was computed stands"));
    connect(compute, &QPushButton::clicked, this, &MergeLabelsDialog::mergeLabels);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);

    auto* form = new QFormLayout;
    form->addRow(tr("Merge Distance (Time steps)"), m_Distance);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(compute);
    buttons->addWidget(cancel);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(tr("<h2>Merge Labels</h2>")));
    layout->addLayout(form);
    layout->addLayout(buttons);
    m_Distance->setFocus();
    m_Distance->selectAll();
}

void MergeLabelsDialog::mergeLabels()
{
    m_CutCollection->MergeLabels(m_Distance->value());
    emit LabelsMerged();
}

void RunMergeLabels(const SharedRecording& recording, QWidget* parent)
{
    ModalDialog<MergeLabelsDialog> dialog(recording->GetCutCollection(), parent);
    QObject::connect(dialog.Get(), &MergeLabelsDialog::LabelsMerged, recording.get(),
                     &LiveRecording::TellLabels);
    dialog.Run();
}
