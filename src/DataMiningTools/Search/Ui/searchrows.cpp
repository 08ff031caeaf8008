#include "searchrows.h"

#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>

namespace
{
constexpr int shownRows = 3;
}

SearchRows::SearchRows(QWidget* parent) : QScrollArea(parent)
{
    auto* content = new QWidget;
    m_Rows = new QVBoxLayout(content);
    m_Rows->setContentsMargins(0, 0, 0, 0);
    m_Rows->addStretch();
    setWidget(content);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // The colour of what lies below, also in a group.
    content->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
    // Buttons are the highest fields.
    const int rowHeight = QPushButton(QStringLiteral("M")).sizeHint().height();
    setFixedHeight(shownRows * (rowHeight + m_Rows->spacing()) - m_Rows->spacing());
}

void SearchRows::AddRow(QWidget* row)
{
    m_Rows->insertWidget(m_Rows->count() - 1, row);
    setMinimumWidth(std::max(minimumWidth(), row->minimumSizeHint().width() +
                                                 verticalScrollBar()->sizeHint().width()));
    row->show();
    row->setFocus();
    m_Rows->activate();
    widget()->adjustSize();
    ensureWidgetVisible(row);
}

void SearchRows::RemoveRow(QWidget* row)
{
    m_Rows->removeWidget(row);
    row->hide();
    // It may be the one whose button was pressed.
    row->deleteLater();
}
