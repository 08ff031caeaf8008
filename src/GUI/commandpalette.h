#pragma once

#include <QDialog>
#include <QKeySequence>
#include <functional>
#include <vector>

class QLineEdit;
class QTreeWidget;
class QTreeWidgetItem;

/// Finds one of many tools by a few letters of its name. Tools that are not possible now are shown
/// with what they wait for, and cannot be chosen.
class CommandPalette : public QDialog
{
    Q_OBJECT
public:
    struct Entry {
        /// Where the tool stands, "Tools/Derive Attributes".
        QString m_Place;
        QString m_Title;
        QKeySequence m_Keys;
        /// Why the tool is not possible now; empty when it is.
        QString m_Obstacle;
        std::function<void()> m_Run;
    };

    explicit CommandPalette(std::vector<Entry> entries, QWidget* parent = nullptr);

    /// What the chosen tool runs, once the dialog was accepted.
    std::function<void()> GetChoice() const;

protected:
    /// Up and Down, PageUp and PageDown in the field move through the list.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void showMatches(const QString& letters);
    void showObstacle(QTreeWidgetItem& item, const QString& obstacle) const;
    void choose();

    const std::vector<Entry> m_Entries;
    QLineEdit* m_Letters;
    QTreeWidget* m_List;
};

/// How well a text answers to letters that somebody typed to find it: all of them have to occur in
/// their order, upper or lower case; better at the start of words and in a row. -1 when they do
/// not; above that, the higher the better; 0 without letters.
int MatchOfLetters(const QString& text, const QString& letters);
