#pragma once

#include "attributetype.h"
#include <QWidget>

class QComboBox;
class QLineEdit;

/// Type and name of one column. Choosing a type overwrites the name with the type's.
class AttributeNameDialogRow : public QWidget
{
    Q_OBJECT
public:
    explicit AttributeNameDialogRow(const QString& caption, QWidget* parent = nullptr);

    QString GetName() const;
    AttributeType GetType() const;

public slots:
    void attTypeChanged(int type);

private:
    QComboBox* m_Type;
    QLineEdit* m_Name;
};
