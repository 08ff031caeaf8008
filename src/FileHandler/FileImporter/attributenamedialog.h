#pragma once

#include "headerpresets.h"
#include <QDialog>

class AttributeNameDialogRow;

/// Asks for the names and types of all columns of a table.
class AttributeNameDialog : public QDialog
{
    Q_OBJECT
public:
    /// columns: how many columns to ask for.
    explicit AttributeNameDialog(int columns, QWidget* parent = nullptr);

    QStringList GetNames() const { return GetHeaders().m_Names; }
    QList<AttributeType> GetTypes() const { return GetHeaders().m_Types; }
    ColumnHeaders GetHeaders() const;

private:
    QWidget* makeRows(int columns);

    QList<AttributeNameDialogRow*> m_Rows;
};
