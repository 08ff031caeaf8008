#include "tableresultwidget.h"

#include "cutcollection.h"
#include "cutsegmentpushbutton.h"
#include "dataset.h"
#include "modaldialog.h"
#include "patternsdataobject.h"
#include "segmentresizedialog.h"
#include "segmentresizewidget.h"
#include "segmenttablemodel.h"
#include "sparklinedelegate.h"
#include "templatesearch.h"
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QPointer>
#include <QScrollBar>
#include <QTableView>
#include <QVBoxLayout>
#include <algorithm>

TableResultWidget::TableResultWidget(QWidget* parent)
    : QWidget(parent), m_Model(new SegmentTableModel(this)), m_Table(new QTableView),
      m_ContextMenu(new QMenu(this))
{
    m_Table->setModel(m_Model);
    m_Table->setItemDelegateForColumn(SegmentTableModel::COLUMN_SPARKLINE,
                                      new SparklineDelegate(m_Model, QSize(), false, this));
    m_Table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_Table->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_Table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_Table->setTabKeyNavigation(false);
    m_Table->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_Table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_Table->setContextMenuPolicy(Qt::CustomContextMenu);
    layOutColumns();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_Table);
    setFocusProxy(m_Table);
    connectTable();
}

void TableResultWidget::layOutColumns()
{
    constexpr int narrowestLine = 100;
    constexpr int lowestLine = 40;
    const std::unique_ptr<QWidget> buttons(makeButtons(nullptr));
    QHeaderView* columns = m_Table->horizontalHeader();
    const int buttonsWidth = std::max(buttons->sizeHint().width(),
                                      columns->sectionSizeHint(SegmentTableModel::COLUMN_BUTTONS));
    columns->setSectionsClickable(false);
    columns->setHighlightSections(false);
    columns->setSectionResizeMode(SegmentTableModel::COLUMN_BUTTONS, QHeaderView::Fixed);
    columns->setSectionResizeMode(SegmentTableModel::COLUMN_SPARKLINE, QHeaderView::Stretch);
    columns->resizeSection(SegmentTableModel::COLUMN_BUTTONS, buttonsWidth);

    QHeaderView* rows = m_Table->verticalHeader();
    rows->setSectionResizeMode(QHeaderView::Fixed);
    rows->setDefaultSectionSize(std::max(buttons->sizeHint().height(), lowestLine));
    rows->hide();
    m_Table->verticalScrollBar()->setSingleStep(rows->defaultSectionSize() / 2);
    m_Table->setMinimumWidth(buttonsWidth + narrowestLine);
}

void TableResultWidget::connectTable()
{
    m_ButtonTimer.setSingleShot(true);
    connect(&m_ButtonTimer, &QTimer::timeout, this, &TableResultWidget::tableResized);
    const auto startTimer = qOverload<>(&QTimer::start);
    connect(m_Model, &QAbstractItemModel::modelReset, &m_ButtonTimer, startTimer);
    connect(m_Model, &QAbstractItemModel::rowsInserted, &m_ButtonTimer, startTimer);
    connect(m_Model, &QAbstractItemModel::rowsRemoved, &m_ButtonTimer, startTimer);
    QScrollBar* bar = m_Table->verticalScrollBar();
    connect(bar, &QScrollBar::valueChanged, this, &TableResultWidget::tableResized);
    connect(bar, &QScrollBar::rangeChanged, &m_ButtonTimer, startTimer);
    connect(m_Table->horizontalHeader(), &QHeaderView::sectionResized, &m_ButtonTimer, startTimer);

    connect(m_Table, &QWidget::customContextMenuRequested, this,
            &TableResultWidget::provideContextMenu);
    connect(m_Table, &QAbstractItemView::activated, this, [this](const QModelIndex& index) {
        showInTimeSeries(m_Model->GetSegment(index.row()));
    });
    m_Table->installEventFilter(this);
}

bool TableResultWidget::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress ||
        !static_cast<QKeyEvent*>(event)->matches(QKeySequence::Delete))
        return QWidget::eventFilter(watched, event);
    emit SelectionRejected();
    return true;
}

QWidget* TableResultWidget::makeButtons(CutSegment* segment)
{
    auto* cell = new QWidget;
    auto* accept = new CutSegmentPushButton(cell, segment);
    auto* reject = new CutSegmentPushButton(cell, segment);
    accept->setText(tr("Move Labels"));
    accept->setToolTip(tr("Move this segment into a behavior"));
    reject->setText(tr("Reject"));
    reject->setToolTip(tr("Take this segment off the list"));
    connect(accept, &CutSegmentPushButton::triggered, this, &TableResultWidget::acceptItem);
    connect(reject, &CutSegmentPushButton::triggered, this, &TableResultWidget::rejectItem);

    auto* layout = new QHBoxLayout(cell);
    layout->setContentsMargins(2, 2, 2, 2);
    layout->setSpacing(2);
    for (QPushButton* button : {accept, reject}) {
        // The keyboard stays with the table, which has keys of its own for the selected rows.
        button->setFocusPolicy(Qt::NoFocus);
        layout->addWidget(button);
    }
    return cell;
}

void TableResultWidget::SetDataSet(DataSet* dataSet)
{
    m_Model->SetDataSet(dataSet);
}

void TableResultWidget::SetCutCollection(CutCollection* cuts)
{
    if (cuts != m_CutCollection)
        Clear();
    m_CutCollection = cuts;
}

void TableResultWidget::SetAttribute(int attribute)
{
    m_Model->SetAttribute(attribute);
}

void TableResultWidget::AddSegment(CutSegment* segment, const QColor& color)
{
    m_Model->Add(segment, color);
}

void TableResultWidget::RemoveSegment(CutSegment* segment)
{
    m_Model->Remove({segment});
}

void TableResultWidget::RemoveSegments(const QList<CutSegment*>& segments)
{
    if (segments.isEmpty())
        return;
    const int row = m_Model->FindRow(segments.first());
    const int scrolled = m_Table->verticalScrollBar()->value();
    m_Model->Remove(QSet<CutSegment*>(segments.begin(), segments.end()));
    // The keyboard goes on where the first of them was.
    const int next = std::min(row, m_Model->rowCount() - 1);
    if (next < 0 || m_Table->currentIndex().isValid())
        return;
    m_Table->verticalScrollBar()->setValue(scrolled);
    m_Table->selectionModel()->setCurrentIndex(
        m_Model->index(next, SegmentTableModel::COLUMN_SPARKLINE), QItemSelectionModel::NoUpdate);
}

void TableResultWidget::Clear()
{
    m_Model->Clear();
}

void TableResultWidget::BeginBulk()
{
    m_Model->BeginBulk();
}

void TableResultWidget::EndBulk()
{
    m_Model->EndBulk();
}

bool TableResultWidget::Contains(CutSegment* segment) const
{
    return m_Model->FindRow(segment) != -1;
}

QList<CutSegment*> TableResultWidget::SelectedSegments() const
{
    QModelIndexList selected = m_Table->selectionModel()->selectedRows();
    std::sort(selected.begin(), selected.end());
    QList<CutSegment*> segments;
    for (const QModelIndex& index : qAsConst(selected))
        segments.append(m_Model->GetSegment(index.row()));
    return segments;
}

bool TableResultWidget::isInView(int row) const
{
    const int top = m_Table->rowViewportPosition(row);
    return top + m_Table->rowHeight(row) > 0 && top < m_Table->viewport()->height();
}

void TableResultWidget::tableResized()
{
    QList<QPersistentModelIndex> kept;
    for (const QPersistentModelIndex& index : qAsConst(m_ButtonRows)) {
        if (!index.isValid())
            continue;
        if (isInView(index.row()))
            kept.append(index);
        else
            m_Table->setIndexWidget(index, nullptr);
    }
    m_ButtonRows = kept;
    const int first = m_Table->rowAt(0);
    for (int row = first; row >= 0 && row < m_Model->rowCount() && isInView(row); ++row) {
        const QModelIndex index = m_Model->index(row, SegmentTableModel::COLUMN_BUTTONS);
        if (m_Table->indexWidget(index))
            continue;
        m_Table->setIndexWidget(index, makeButtons(m_Model->GetSegment(row)));
        m_ButtonRows.append(index);
    }
}

struct TableResultWidget::MenuEntry {
    const char* m_Text;
    void (TableResultWidget::*m_Run)(CutSegment*);
};

const std::vector<TableResultWidget::MenuEntry>& TableResultWidget::menuEntries()
{
    static const std::vector<MenuEntry> entries{
        {"Search Template", &TableResultWidget::searchTemplate},
        {"Save Template", &TableResultWidget::saveTemplate},
        {"Show In Time-Series", &TableResultWidget::showInTimeSeries},
        {"Resize Segment", &TableResultWidget::resizeSegment},
    };
    return entries;
}

void TableResultWidget::provideContextMenu(QPoint point)
{
    const QModelIndex index = m_Table->indexAt(point);
    if (!index.isValid())
        return;
    CutSegment* segment = m_Model->GetSegment(index.row());
    m_ContextMenu->clear();
    for (const MenuEntry& entry : menuEntries()) {
        const auto run = entry.m_Run;
        m_ContextMenu->addAction(tr(entry.m_Text), this, [=] {
            if (Contains(segment))
                (this->*run)(segment);
        });
    }
    m_ContextMenu->popup(m_Table->viewport()->mapToGlobal(point));
}

void TableResultWidget::searchTemplate(CutSegment* segment)
{
    const QPointer<TableResultWidget> self(this);
    if (m_CutCollection &&
        SearchForRows(this, m_Model->GetDataSet(), m_CutCollection, segment->GetFrom(),
                      segment->GetTo()) &&
        self)
        emit NewResultsFound();
}

void TableResultWidget::saveTemplate(CutSegment* segment)
{
    SaveTemplate(this, m_Model->GetDataSet(), segment->GetFrom(), segment->GetTo());
}

void TableResultWidget::showInTimeSeries(CutSegment* segment)
{
    emit ShowSelected(segment->GetFrom(), segment->GetTo());
}

void TableResultWidget::resizeSegment(CutSegment* segment)
{
    const std::optional<RowSpan> ends = askForEnds(*segment);
    if (!ends)
        return;
    m_CutCollection->MoveSegment(m_Model->GetDataSet(), segment, ends->m_From, ends->m_To);
    emit RemoveAndAddAll();
}

std::optional<RowSpan> TableResultWidget::askForEnds(const CutSegment& segment)
{
    DataSet* dataSet = m_Model->GetDataSet();
    if (!dataSet || !m_CutCollection)
        return std::nullopt;
    const auto limits = ResizeLimits(*m_CutCollection, &segment, dataSet->GetRowCount());
    if (!limits)
        return std::nullopt;
    ModalDialog<SegmentResizeDialog> dialog(this);
    SegmentResizeWidget* ends = dialog->GetResizeWidget();
    ends->SetDataSet(dataSet);
    ends->SetAttribute(m_Model->GetAttribute());
    ends->SetLimits(limits->m_From, limits->m_To);
    ends->SetPlotRange(limits->m_From, limits->m_To);
    ends->SetSelection(segment.GetFrom(), segment.GetTo());
    // The row, the segment or the recording may have gone meanwhile.
    if (!dialog.IsAccepted() || dataSet != m_Model->GetDataSet() || !m_CutCollection ||
        !m_CutCollection->Contains(&segment))
        return std::nullopt;
    const RowSpan chosen = ends->GetSelection();
    return chosen.GetLength() >= 0 ? std::optional(chosen) : std::nullopt;
}

void TableResultWidget::acceptItem(QObject* segment)
{
    if (auto* accepted = qobject_cast<CutSegment*>(segment))
        emit SegmentAccepted(accepted);
}

void TableResultWidget::rejectItem(QObject* segment)
{
    auto* rejected = qobject_cast<CutSegment*>(segment);
    if (!rejected)
        return;
    RemoveSegment(rejected);
    emit SegmentRejected(rejected);
}
