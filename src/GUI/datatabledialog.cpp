#include "datatabledialog.h"

#include "dataset.h"
#include "modaldialog.h"
#include <QHBoxLayout>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <algorithm>

namespace
{

constexpr int PAGE_ROWS = 100;

// Enter belongs to the page box, so no button may answer to it.
QPushButton* makeButton(const QString& text)
{
    auto* button = new QPushButton(text);
    button->setAutoDefault(false);
    return button;
}

QTableWidgetItem* makeCell(double value)
{
    auto* cell = new QTableWidgetItem(QString::number(value, 'g', QLocale::FloatingPointShortest));
    cell->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
    cell->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return cell;
}

} // namespace

DataTableDialog::DataTableDialog(DataSet* dataSet, QWidget* parent)
    : QDialog(parent), m_DataSet(dataSet), m_Table(new QTableWidget),
      m_Page(new QLineEdit(QStringLiteral("1"))), m_RowsShown(new QLabel)
{
    setWindowTitle(tr("Data Table"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_Table);
    layout->addLayout(makeNavigation());
    resize(fontMetrics().averageCharWidth() * 120, fontMetrics().height() * 35);

    QStringList names;
    for (int attribute = 0; attribute < m_DataSet->GetAttributeCount(); ++attribute)
        names.append(m_DataSet->GetAttributeName(attribute));
    m_Table->setColumnCount(names.size());
    m_Table->setHorizontalHeaderLabels(names);
    fillTable();
}

QLayout* DataTableDialog::makeNavigation()
{
    auto* previous = makeButton(tr("Previous"));
    auto* next = makeButton(tr("Next"));
    auto* close = makeButton(tr("Close"));
    const int pages = (m_DataSet->GetRowCount() + PAGE_ROWS - 1) / PAGE_ROWS;
    m_Page->setValidator(new QIntValidator(0, pages, m_Page));
    m_Page->setMaximumWidth(fontMetrics().averageCharWidth() * 14);
    m_Page->setToolTip(tr("Page number, 0 to %1").arg(pages));
    auto* label = new QLabel(tr("P&age:"));
    label->setBuddy(m_Page);

    connect(previous, &QPushButton::clicked, this, &DataTableDialog::navPreviousPage);
    connect(next, &QPushButton::clicked, this, &DataTableDialog::navNextPage);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_Page, &QLineEdit::returnPressed, this, &DataTableDialog::pageManuallySet);

    auto* row = new QHBoxLayout;
    row->addWidget(previous);
    row->addWidget(label);
    row->addWidget(m_Page);
    row->addWidget(next);
    row->addWidget(m_RowsShown);
    row->addStretch();
    row->addWidget(close);
    return row;
}

void DataTableDialog::navPreviousPage()
{
    showFrom(m_From - PAGE_ROWS);
    m_Page->setText(QString::number(m_From / PAGE_ROWS));
}

void DataTableDialog::navNextPage()
{
    showFrom(m_From + PAGE_ROWS);
    m_Page->setText(QString::number(m_From / PAGE_ROWS));
}

void DataTableDialog::pageManuallySet()
{
    bool isNumber = false;
    const int page = m_Page->text().toInt(&isNumber);
    if (isNumber)
        showFrom(qint64(page) * PAGE_ROWS);
    else
        m_Page->setText(QString::number(m_From / PAGE_ROWS));
}

void DataTableDialog::showFrom(qint64 from)
{
    const int rows = m_DataSet->GetRowCount();
    qint64 to = from + PAGE_ROWS;
    if (to >= rows) {
        from = rows - PAGE_ROWS;
        to = rows - 1;
    }
    if (from < 0) {
        from = 0;
        to = PAGE_ROWS;
    }
    m_From = int(from);
    m_To = int(to);
    fillTable();
}

void DataTableDialog::fillTable()
{
    // The last page ends at the last row itself, every other one before m_To.
    const int end = std::min(m_From + PAGE_ROWS, m_DataSet->GetRowCount());
    m_Table->clearContents();
    m_Table->setRowCount(end - m_From);
    QStringList labels;
    for (int row = m_From; row < end; ++row) {
        labels.append(m_DataSet->GetRowLabel(row));
        for (int attribute = 0; attribute < m_DataSet->GetAttributeCount(); ++attribute)
            m_Table->setItem(row - m_From, attribute,
                             makeCell(m_DataSet->GetValue(row, attribute)));
    }
    m_Table->setVerticalHeaderLabels(labels);
    m_Table->scrollToTop();
    m_RowsShown->setText(tr("Rows %1 to %2 of %3")
                             .arg(std::min(m_From + 1, end))
                             .arg(end)
                             .arg(m_DataSet->GetRowCount()));
}

void ShowDataTable(const SharedRecording& recording, QWidget* parent)
{
    ModalDialog<DataTableDialog>(recording->GetDataSet(), parent).Run();
}
