#pragma once

#include <QListWidgetItem>

/// An entry of a list that stands for the row of that id in the template database.
class IDListWidgetItem : public QListWidgetItem
{
public:
    IDListWidgetItem(const QString& text, int id, QListWidget* list = nullptr)
        : QListWidgetItem(text, list, UserType), m_Id(id)
    {
    }

    int GetId() const { return m_Id; }

private:
    int m_Id;
};
