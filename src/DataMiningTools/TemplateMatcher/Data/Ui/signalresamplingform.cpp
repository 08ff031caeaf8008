#include "signalresamplingform.h"

#include "frequencylistwidgetitem.h"
#include "signalresampling.h"
#include "usererror.h"
#include <QFormLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>

SignalResamplingForm::SignalResamplingForm(QWidget* parent)
    : QDialog(parent), m_Up(new QLineEdit), m_Down(new QLineEdit), m_Factors(new QListWidget)
{
    setWindowTitle(tr("Resample Signal"));
    m_Up->setToolTip(tr("By how many the number of samples is multiplied"));
    m_Down->setToolTip(tr("One of how many samples is then kept"));
    m_Factors->setToolTip(tr("The template is stored once for each; Delete takes one out"));
    m_Factors->addItem(new FrequencyListWidgetItem(1, 1));
    auto* deleteKey =
        new QShortcut(QKeySequence::Delete, m_Factors, nullptr, nullptr, Qt::WidgetShortcut);
    connect(deleteKey, &QShortcut::activated, this, [this] { delete m_Factors->currentItem(); });

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(makeFields());
    layout->addWidget(m_Factors, 1);
    layout->addLayout(makeButtons());
    m_Up->setFocus();
}

QLayout* SignalResamplingForm::makeFields()
{
    auto* add = new QPushButton(tr("Add"));
    // Enter in a field adds its factors; Done is a step of its own.
    add->setDefault(true);
    connect(add, &QPushButton::clicked, this, &SignalResamplingForm::addFrequency);
    auto* form = new QFormLayout;
    form->addRow(tr("Up Factor: "), m_Up);
    form->addRow(tr("Down Factor: "), m_Down);
    form->addRow(QString(), add);
    return form;
}

QLayout* SignalResamplingForm::makeButtons()
{
    auto* cancel = new QPushButton(tr("Cancel"));
    auto* done = new QPushButton(tr("Done"));
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(done, &QPushButton::clicked, this, &QDialog::accept);
    auto* row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(cancel);
    row->addWidget(done);
    return row;
}

void SignalResamplingForm::addFrequency()
{
    for (QLineEdit* field : {m_Up, m_Down}) {
        // What is no number reads as 0.
        const int factor = field->text().trimmed().toInt();
        if (factor >= 1 && factor <= MaxResamplingFactor)
            continue;
        ShowUserError(
            this, tr("Error"),
            tr("Error: Factors are whole numbers from 1 to %1.").arg(MaxResamplingFactor));
        field->setFocus();
        field->selectAll();
        return;
    }
    m_Factors->addItem(new FrequencyListWidgetItem(m_Up->text().trimmed().toInt(),
                                                   m_Down->text().trimmed().toInt()));
    m_Factors->scrollToBottom();
    m_Up->setFocus();
    m_Up->selectAll();
}

void SignalResamplingForm::accept()
{
    if (m_Factors->count() > 0) {
        QDialog::accept();
        return;
    }
    ShowUserError(this, tr("Error"), tr("Error: No factors entered."));
    m_Up->setFocus();
}

QList<QPair<int, int>> SignalResamplingForm::GetFactors() const
{
    QList<QPair<int, int>> factors;
    for (int i = 0; i < m_Factors->count(); ++i) {
        const auto* item = static_cast<const FrequencyListWidgetItem*>(m_Factors->item(i));
        factors.append(qMakePair(item->GetUpFactor(), item->GetDownFactor()));
    }
    return factors;
}
