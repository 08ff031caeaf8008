#include "energydialog.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSlider>
#include <QSpinBox>

EnergyDialog::EnergyDialog(const DataSet& dataSet, const EnergyParams& start, QWidget* parent)
    : DerivationDialog(dataSet, tr("Energy"), parent)
{
    m_Attribute = addAttribute(tr("Data Attribute"), start.m_Attribute);
    m_Window = addWindowWithSlider(start.m_Window);
    m_Name = addName(start.m_Name);
    addButtons();
}

QSpinBox* EnergyDialog::addWindowWithSlider(int start)
{
    QSpinBox* box = makeWindowBox(start);
    auto* slider = new QSlider(Qt::Horizontal);
    slider->setRange(box->minimum(), box->maximum());
    slider->setValue(box->value());
    connect(box, QOverload<int>::of(&QSpinBox::valueChanged), slider, &QSlider::setValue);
    connect(slider, &QSlider::valueChanged, box, &QSpinBox::setValue);
    for (QWidget* widget : {static_cast<QWidget*>(box), static_cast<QWidget*>(slider)})
        widget->setToolTip(tr("Rows around each row of which the squares are added up"));

    auto* row = new QHBoxLayout;
    row->addWidget(box);
    row->addWidget(slider, 1);
    auto* label = new QLabel(tr("Window Size"));
    label->setBuddy(box);
    form()->addRow(label, row);
    return box;
}

EnergyParams EnergyDialog::GetParams() const
{
    return {m_Attribute->currentIndex(), m_Window->value(), m_Name->text()};
}
