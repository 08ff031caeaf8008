#include "periodiccutdialog.h"

#include <QFormLayout>
#include <QLabel>
#include <QSlider>
#include <QSpinBox>

namespace
{
constexpr int largestSize = 1000;
}

PeriodicCutDialog::PeriodicCutDialog(const PeriodicCutParameters& start, QWidget* parent)
    : FormDialog(tr("<h2>Peroidic Cuts</h2>"), parent), m_CutSize(new QSpinBox)
{
    setWindowTitle(tr("Periodic Cuts"));
    auto* slider = new QSlider(Qt::Horizontal);
    m_CutSize->setMaximum(largestSize);
    slider->setMaximum(largestSize);
    connect(m_CutSize, QOverload<int>::of(&QSpinBox::valueChanged), slider, &QSlider::setValue);
    connect(slider, &QSlider::valueChanged, m_CutSize, &QSpinBox::setValue);
    m_CutSize->setValue(start.m_CutSize);
    m_CutSize->setToolTip(tr("Rows from one cut to the next; 0 cuts nothing"));
    slider->setToolTip(m_CutSize->toolTip());

    auto* label = new QLabel(tr("Cut Size"));
    label->setBuddy(m_CutSize);
    auto* row = new QHBoxLayout;
    row->addWidget(m_CutSize);
    row->addWidget(slider, 1);
    form()->addRow(label, row);
    addButtons();
    m_CutSize->setFocus();
    m_CutSize->selectAll();
}

PeriodicCutParameters PeriodicCutDialog::GetParameters() const
{
    return {m_CutSize->value()};
}
