#include "axessettingsdialog.h"

#include "axisrangebox.h"
#include "dataset.h"
#include "modaldialog.h"
#include "usererror.h"
#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <algorithm>
#include <cmath>

AxesSettingsDialog::AxesSettingsDialog(DataSet* dataSet, QWidget* parent)
    : QDialog(parent), m_DataSet(dataSet)
{
    setWindowTitle(tr("Axes Settings"));
    auto* scroll = new QScrollArea;
    scroll->setWidget(makeRows());
    scroll->setWidgetResizable(true);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setMinimumWidth(scroll->widget()->minimumSizeHint().width() +
                            scroll->verticalScrollBar()->sizeHint().width());

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(tr("<h2>Axes Settings</h2>")));
    layout->addWidget(scroll, 1);
    layout->addLayout(makeButtons());
}

QWidget* AxesSettingsDialog::makeRows()
{
    auto* rows = new QWidget;
    auto* grid = new QGridLayout(rows);
    for (int i = 0; i < m_DataSet->GetAttributeCount(); ++i) {
        const QString name = m_DataSet->GetAttributeName(i);
        const Row row{new AxisRangeBox(m_DataSet->GetMinValue(i)),
                      new AxisRangeBox(m_DataSet->GetMaxValue(i)), new QCheckBox(tr("Baseline"))};
        row.m_Minimum->setToolTip(tr("Lowest value on the axis of %1").arg(name));
        row.m_Maximum->setToolTip(tr("Highest value on the axis of %1").arg(name));
        row.m_Baseline->setToolTip(tr("Draw a line at zero in the plot of %1").arg(name));
        grid->addWidget(new QLabel(QStringLiteral("<b>%1</b>").arg(name.toHtmlEscaped())), i, 0);
        grid->addWidget(row.m_Minimum, i, 1);
        grid->addWidget(row.m_Maximum, i, 2);
        grid->addWidget(row.m_Baseline, i, 3);
        m_Rows.push_back(row);
    }
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(2, 1);
    grid->setRowStretch(int(m_Rows.size()), 1);
    return rows;
}

QLayout* AxesSettingsDialog::makeButtons()
{
    auto* mirror = new QPushButton(tr("Mirror Values"));
    auto* reset = new QPushButton(tr("Reset Values"));
    auto* save = new QPushButton(tr("Save"));
    auto* cancel = new QPushButton(tr("Cancel"));
    mirror->setAutoDefault(false);
    reset->setAutoDefault(false);
    save->setDefault(true);
    connect(mirror, &QPushButton::clicked, this, &AxesSettingsDialog::mirrorValues);
    connect(reset, &QPushButton::clicked, this, &AxesSettingsDialog::ResetValues);
    connect(save, &QPushButton::clicked, this, &AxesSettingsDialog::adjustAxesValues);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);

    auto* row = new QHBoxLayout;
    row->addWidget(mirror);
    row->addWidget(reset);
    row->addStretch();
    row->addWidget(save);
    row->addWidget(cancel);
    return row;
}

void AxesSettingsDialog::mirrorValues()
{
    for (const Row& row : m_Rows) {
        const double minimum = row.m_Minimum->GetLimit();
        if (minimum > 0) {
            row.m_Minimum->SetLimit(0);
            continue;
        }
        const double most = std::max(std::abs(row.m_Maximum->GetLimit()), std::abs(minimum));
        row.m_Minimum->SetLimit(-most);
        row.m_Maximum->SetLimit(most);
    }
}

void AxesSettingsDialog::ResetValues()
{
    for (size_t i = 0; i < m_Rows.size(); ++i) {
        m_Rows[i].m_Minimum->SetLimit(double(m_DataSet->GetRawMin(int(i))));
        m_Rows[i].m_Maximum->SetLimit(double(m_DataSet->GetRawMax(int(i))));
    }
}

void AxesSettingsDialog::adjustAxesValues()
{
    if (!checkLimits())
        return;
    QHash<int, QPair<double, double>> ranges;
    QHash<int, bool> zeroLines;
    for (size_t i = 0; i < m_Rows.size(); ++i) {
        const Row& row = m_Rows[i];
        ranges.insert(int(i), qMakePair(row.m_Minimum->GetLimit(), row.m_Maximum->GetLimit()));
        // The boxes never show what is stored, so each save sets all zero lines afresh: kept.
        zeroLines.insert(int(i), row.m_Baseline->isChecked());
    }
    m_DataSet->SetAxisRanges(ranges);
    m_DataSet->SetZeroLines(zeroLines);
    accept();
}

bool AxesSettingsDialog::checkLimits()
{
    for (size_t i = 0; i < m_Rows.size(); ++i) {
        const Row& row = m_Rows[i];
        // A column without any number has its limits crossed from the start; only those that
        // somebody typed are wrong.
        const bool isEdited = row.m_Minimum->IsEdited() || row.m_Maximum->IsEdited();
        if (!isEdited || row.m_Minimum->GetLimit() <= row.m_Maximum->GetLimit())
            continue;
        ShowUserError(this, tr("Error"),
                      tr("Error - The minimum of %1 is above its maximum.")
                          .arg(m_DataSet->GetAttributeName(int(i))));
        row.m_Minimum->setFocus();
        row.m_Minimum->selectAll();
        return false;
    }
    return true;
}

void EditAxes(const SharedRecording& recording, QWidget* parent)
{
    if (ModalDialog<AxesSettingsDialog>(recording->GetDataSet(), parent).IsAccepted())
        recording->Tell(LiveRecording::ATTRIBUTES);
}
