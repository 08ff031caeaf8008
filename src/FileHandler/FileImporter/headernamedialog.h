#pragma once

#include "attributetype.h"
#include <QDialog>

class QComboBox;
class QLineEdit;

/// Asks for the name and type of one column.
class HeaderNameDialog : public QDialog
{
    Q_OBJECT
public:
    HeaderNameDialog(const QString& name, AttributeType type, QWidget* parent = nullptr);

    QString GetName() const;
    AttributeType GetType() const;

private:
    QLineEdit* m_Name;
    QComboBox* m_Type;
};
