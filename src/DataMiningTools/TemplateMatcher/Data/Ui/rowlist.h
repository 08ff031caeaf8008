#pragma once

#include <QListWidgetItem>
#include <QVector>
#include <QWidget>

class QHBoxLayout;
class QListWidget;
class QPushButton;

/// A captioned list of rows of the template database, with buttons under it.
class RowList : public QWidget
{
    Q_OBJECT
public:
    struct Row {
        int m_Id;
        QString m_Text;
        QString m_ToolTip;
    };

    explicit RowList(const QString& caption, QWidget* parent = nullptr);

    /// A button that works whatever is current.
    QPushButton* AddButton(const QString& text, const QString& toolTip, const QString& icon);
    /// A button that is disabled while no row is current.
    QPushButton* AddRowButton(const QString& text, const QString& toolTip,
                              const QString& icon = QString());

    /// Replaces the rows. The current one stays current if it is still among them; nothing is
    /// signalled.
    void SetRows(const QVector<Row>& rows);
    /// Goes to the row of that id, as the user does; stays where it is when there is none.
    void SetCurrentId(int id);
    QListWidgetItem* GetCurrentItem() const;
    /// -1 when no row is current.
    int GetCurrentId() const;

    /// The id of such an entry, -1 for null.
    static int GetId(const QListWidgetItem* item);

signals:
    /// The user went to another row or activated one; null for none.
    void RowChosen(QListWidgetItem* item);

protected:
    /// Keeps an Enter that activated a row from the buttons of the dialog.
    void keyPressEvent(QKeyEvent* event) override;

private:
    void updateButtons();

    QListWidget* m_List;
    QHBoxLayout* m_Buttons;
    QVector<QPushButton*> m_RowButtons;
};
