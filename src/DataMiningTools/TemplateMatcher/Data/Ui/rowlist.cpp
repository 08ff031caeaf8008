#include "rowlist.h"

#include "idlistwidgetitem.h"
#include "panelbutton.h"
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

RowList::RowList(const QString& caption, QWidget* parent)
    : QWidget(parent), m_List(new QListWidget), m_Buttons(new QHBoxLayout)
{
    auto* label = new QLabel(caption);
    label->setBuddy(m_List);
    setFocusProxy(m_List);
    m_Buttons->addStretch();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(label);
    layout->addWidget(m_List, 1);
    layout->addLayout(m_Buttons);
    connect(m_List, &QListWidget::currentItemChanged, this, &RowList::updateButtons);
    connect(m_List, &QListWidget::currentItemChanged, this, &RowList::RowChosen);
    connect(m_List, &QListWidget::itemActivated, this, &RowList::RowChosen);
}

QPushButton* RowList::AddButton(const QString& text, const QString& toolTip, const QString& icon)
{
    QPushButton* button = MakePanelButton(text, toolTip, icon);
    m_Buttons->insertWidget(m_Buttons->count() - 1, button);
    return button;
}

QPushButton* RowList::AddRowButton(const QString& text, const QString& toolTip, const QString& icon)
{
    QPushButton* button = AddButton(text, toolTip, icon);
    m_RowButtons.append(button);
    updateButtons();
    return button;
}

void RowList::SetRows(const QVector<Row>& rows)
{
    const QSignalBlocker blocker(m_List);
    const int current = GetCurrentId();
    m_List->clear();
    for (const Row& row : rows) {
        auto* item = new IDListWidgetItem(row.m_Text, row.m_Id, m_List);
        // As rich text it is broken into lines, however long it is.
        item->setToolTip(QStringLiteral("<p>%1</p>").arg(row.m_ToolTip.toHtmlEscaped()));
        if (row.m_Id == current)
            m_List->setCurrentItem(item);
    }
    updateButtons();
}

void RowList::SetCurrentId(int id)
{
    for (int i = 0; i < m_List->count(); ++i) {
        if (GetId(m_List->item(i)) == id)
            m_List->setCurrentRow(i);
    }
}

QListWidgetItem* RowList::GetCurrentItem() const
{
    return m_List->currentItem();
}

int RowList::GetCurrentId() const
{
    return GetId(m_List->currentItem());
}

int RowList::GetId(const QListWidgetItem* item)
{
    const auto* row = dynamic_cast<const IDListWidgetItem*>(item);
    return row ? row->GetId() : -1;
}

void RowList::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter)
        QWidget::keyPressEvent(event);
}

void RowList::updateButtons()
{
    for (QPushButton* button : qAsConst(m_RowButtons))
        button->setEnabled(m_List->currentItem());
}
