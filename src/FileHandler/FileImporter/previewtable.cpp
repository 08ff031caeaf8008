#include "previewtable.h"

#include "dataset.h"
#include <QHeaderView>
#include <algorithm>

namespace
{

QTableWidgetItem* makeCell(double value, int digits)
{
    auto* cell = new QTableWidgetItem(QString::number(value, 'g', digits));
    cell->setFlags(cell->flags() & ~Qt::ItemIsEditable);
    return cell;
}

} // namespace

PreviewTable::PreviewTable(QWidget* parent) : QTableWidget(parent)
{
    setTabKeyNavigation(false);
    horizontalHeader()->setSectionsClickable(true);
    horizontalHeader()->setToolTip(tr("Click a header to name its column"));
}

void PreviewTable::ShowDataSet(const DataSet* dataSet, int rows, int digits)
{
    clear();
    setColumnCount(dataSet ? dataSet->GetAttributeCount() : 0);
    setRowCount(rows);
    const int filled = dataSet ? std::min(rows, dataSet->GetRowCount()) : 0;
    for (int row = 0; row < filled; ++row) {
        for (int column = 0; column < columnCount(); ++column)
            setItem(row, column, makeCell(dataSet->GetValue(row, column), digits));
    }
}
