#include "resizelist.h"

#include "dataset.h"
#include "segmentresizewidget.h"
#include <QApplication>
#include <QEvent>
#include <QLabel>
#include <QScrollBar>
#include <QSpinBox>
#include <QVBoxLayout>
#include <algorithm>
#include <limits>

namespace
{

constexpr int contextRows = 200;

} // namespace

ResizeList::ResizeList(DataSet* dataSet, QWidget* parent)
    : QAbstractScrollArea(parent), m_DataSet(dataSet), m_ItemHeight(fontMetrics().height() * 10)
{
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget*, const QWidget* focused) { showFocused(focused); });
}

void ResizeList::SetMatches(const SearchMatches& matches)
{
    m_Matches = matches;
    dropItems(0, -1);
    verticalScrollBar()->setValue(0);
    measure();
    updateItems();
}

void ResizeList::SetAttribute(int attribute)
{
    m_Attribute = attribute;
    for (const auto& item : m_Items)
        item.second.m_Resize->SetAttribute(attribute);
    for (const Item& item : m_SpareItems)
        item.m_Resize->SetAttribute(attribute);
}

void ResizeList::measure()
{
    const qint64 height = qint64(m_ItemHeight) * m_Matches.size();
    const qint64 hidden = std::max<qint64>(height - viewport()->height(), 0);
    verticalScrollBar()->setRange(0,
                                  int(std::min<qint64>(hidden, std::numeric_limits<int>::max())));
    verticalScrollBar()->setPageStep(viewport()->height());
    verticalScrollBar()->setSingleStep(m_ItemHeight / 4);
}

void ResizeList::resizeEvent(QResizeEvent* event)
{
    QAbstractScrollArea::resizeEvent(event);
    measure();
    updateItems();
}

void ResizeList::scrollContentsBy(int, int)
{
    updateItems();
}

void ResizeList::updateItems()
{
    const int top = verticalScrollBar()->value();
    const int first = std::max(top / m_ItemHeight - 1, 0);
    const int last =
        std::min((top + viewport()->height()) / m_ItemHeight + 1, m_Matches.size() - 1);
    dropItems(first, last);
    bool isNew = false;
    for (int i = first; i <= last; ++i) {
        if (m_Items.count(i) == 0) {
            m_Items[i] = takeItem(i);
            isNew = true;
        }
        placeItem(i, m_Items[i].m_Widget);
    }
    if (isNew)
        orderFocus();
}

void ResizeList::dropItems(int first, int last)
{
    for (auto item = m_Items.begin(); item != m_Items.end();) {
        if (item->first >= first && item->first <= last) {
            ++item;
            continue;
        }
        QWidget* widget = item->second.m_Widget;
        // Else the focus would go to another item, and the list would scroll there.
        if (widget->isAncestorOf(QApplication::focusWidget()))
            setFocus();
        widget->hide();
        m_SpareItems.push_back(item->second);
        item = m_Items.erase(item);
    }
}

void ResizeList::placeItem(int index, QWidget* widget) const
{
    const int top = int(qint64(index) * m_ItemHeight - verticalScrollBar()->value());
    widget->setGeometry(0, top, viewport()->width(), m_ItemHeight);
    widget->show();
}

ResizeList::Item ResizeList::takeItem(int index)
{
    if (m_SpareItems.empty())
        m_SpareItems.push_back(makeItem());
    const Item item = m_SpareItems.back();
    m_SpareItems.pop_back();
    const RowSpan match = m_Matches.at(index).m_Rows;
    const int rows = m_DataSet ? m_DataSet->GetRowCount() : 0;
    // The ends may be in the wrong order.
    const auto ends = std::minmax(match.m_From, match.m_To);
    item.m_Caption->setText(tr("Result %1 of %2").arg(index + 1).arg(m_Matches.size()));
    item.m_Resize->SetPlotRange(std::max(ends.first - contextRows, 0),
                                std::min(ends.second + contextRows, rows));
    item.m_Resize->SetSelection(match.m_From, match.m_To);
    return item;
}

// Made once and shown for one match after the other: a plot takes its time over a large data set.
ResizeList::Item ResizeList::makeItem()
{
    auto* widget = new QWidget(viewport());
    auto* caption = new QLabel;
    SegmentResizeWidget* resize = makeResizeWidget();
    auto* layout = new QVBoxLayout(widget);
    layout->addWidget(caption);
    layout->addWidget(resize, 1);
    const int frame = verticalScrollBar()->sizeHint().width() + 2 * frameWidth();
    setMinimumWidth(std::max(minimumWidth(), layout->minimumSize().width() + frame));
    return {widget, caption, resize};
}

SegmentResizeWidget* ResizeList::makeResizeWidget()
{
    auto* resize = new SegmentResizeWidget;
    resize->SetAttribute(m_Attribute);
    resize->SetDataSet(m_DataSet);
    connect(resize, &SegmentResizeWidget::SelectionChanged, this,
            [this, resize] { storeEnds(resize); });
    for (QSpinBox* box : resize->findChildren<QSpinBox*>()) {
        box->setFocusPolicy(Qt::StrongFocus);
        box->installEventFilter(this);
    }
    return resize;
}

void ResizeList::storeEnds(const SegmentResizeWidget* resize)
{
    for (const auto& item : m_Items) {
        RowSpan& rows = m_Matches[item.first].m_Rows;
        if (item.second.m_Resize == resize && rows != resize->GetSelection()) {
            rows = resize->GetSelection();
            emit EndsChanged();
        }
    }
}

// The wheel scrolls the list; it turns only the box that the user has chosen.
bool ResizeList::eventFilter(QObject* watched, QEvent* event)
{
    const auto* box = qobject_cast<QSpinBox*>(watched);
    if (event->type() != QEvent::Wheel || !box || box->hasFocus())
        return QAbstractScrollArea::eventFilter(watched, event);
    event->ignore();
    return true;
}

// Widgets come into being in any order.
void ResizeList::orderFocus()
{
    QWidget* previous = this;
    for (const auto& item : m_Items) {
        for (QSpinBox* box : item.second.m_Resize->findChildren<QSpinBox*>()) {
            setTabOrder(previous, box);
            previous = box;
        }
    }
}

void ResizeList::showFocused(const QWidget* focused)
{
    for (const auto& item : m_Items) {
        if (!focused || !item.second.m_Widget->isAncestorOf(focused))
            continue;
        const int top = item.first * m_ItemHeight;
        const int lowest = top + m_ItemHeight - viewport()->height();
        const int value = verticalScrollBar()->value();
        verticalScrollBar()->setValue(value > top ? top : std::max(value, lowest));
        return;
    }
}
