#pragma once

#include <QDialog>

class QLineEdit;

/// Asks for the name of a group of labels, a new one or one that is there.
class AddGroupDialog : public QDialog
{
    Q_OBJECT
public:
    enum Mode { EDIT_GROUP = 0, ADD_GROUP = 1 };

    explicit AddGroupDialog(int mode, QWidget* parent = nullptr);

    void SetName(const QString& name);
    /// Without blanks at its ends.
    QString GetName() const;

public slots:
    /// Accepts the dialog, or tells the user that there is no name.
    void validateInput();
    void accept() override { validateInput(); }

private:
    QLineEdit* m_Name;
};
