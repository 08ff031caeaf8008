#include "commandpalette.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>

namespace
{

enum Column { TITLE, PLACE, KEYS, COLUMN_COUNT };
constexpr int entryRole = Qt::UserRole;

} // namespace

int MatchOfLetters(const QString& text, const QString& letters)
{
    constexpr int atWord = 8;
    constexpr int inRow = 4;
    int match = 0;
    int place = -1;
    for (const QChar letter : letters) {
        if (letter.isSpace())
            continue;
        const int next = text.indexOf(letter, place + 1, Qt::CaseInsensitive);
        if (next == -1)
            return -1;
        const bool startsWord = next == 0 || !text.at(next - 1).isLetterOrNumber();
        match += 1 + (startsWord ? atWord : 0) + (next == place + 1 ? inRow : 0);
        place = next;
    }
    return match;
}

CommandPalette::CommandPalette(std::vector<Entry> entries, QWidget* parent)
    : QDialog(parent), m_Entries(std::move(entries)), m_Letters(new QLineEdit),
      m_List(new QTreeWidget)
{
    setWindowTitle(tr("Find a Tool"));
    m_Letters->setPlaceholderText(tr("A few letters of its name"));
    m_Letters->setClearButtonEnabled(true);
    m_Letters->installEventFilter(this);
    m_List->setColumnCount(COLUMN_COUNT);
    m_List->setHeaderHidden(true);
    m_List->setRootIsDecorated(false);
    m_List->setUniformRowHeights(true);
    m_List->setAllColumnsShowFocus(true);
    m_List->setFocusPolicy(Qt::NoFocus);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_Letters);
    layout->addWidget(m_List);
    resize(fontMetrics().averageCharWidth() * 90, fontMetrics().height() * 24);
    connect(m_Letters, &QLineEdit::textChanged, this, &CommandPalette::showMatches);
    connect(m_Letters, &QLineEdit::returnPressed, this, &CommandPalette::choose);
    connect(m_List, &QTreeWidget::itemClicked, this, &CommandPalette::choose);
    showMatches({});
    m_Letters->setFocus();
}

void CommandPalette::showMatches(const QString& letters)
{
    std::vector<std::pair<int, int>> found;
    for (size_t i = 0; i < m_Entries.size(); ++i) {
        const Entry& entry = m_Entries[i];
        // The place finds it, too, but what is called so comes first.
        const int title = 2 * MatchOfLetters(entry.m_Title, letters);
        const QString both = entry.m_Place + QLatin1Char(' ') + entry.m_Title;
        const int match = std::max(title, MatchOfLetters(both, letters));
        if (match >= 0)
            found.emplace_back(-match, int(i));
    }
    std::sort(found.begin(), found.end());
    m_List->clear();
    for (const auto& [match, index] : found) {
        const Entry& entry = m_Entries[size_t(index)];
        QString place = entry.m_Place;
        place.replace(QLatin1Char('/'), QStringLiteral(" > "));
        auto* item = new QTreeWidgetItem(
            {entry.m_Title, place, entry.m_Keys.toString(QKeySequence::NativeText)});
        item->setData(TITLE, entryRole, index);
        if (!entry.m_Obstacle.isEmpty())
            showObstacle(*item, entry.m_Obstacle);
        m_List->addTopLevelItem(item);
    }
    m_List->setCurrentItem(m_List->topLevelItem(0));
    m_List->resizeColumnToContents(TITLE);
    m_List->resizeColumnToContents(PLACE);
}

// Greyed out, but still to be stopped at: Enter must not run the next tool in its place.
void CommandPalette::showObstacle(QTreeWidgetItem& item, const QString& obstacle) const
{
    item.setText(PLACE, obstacle);
    for (int column = 0; column < COLUMN_COUNT; ++column)
        item.setForeground(column, palette().color(QPalette::Disabled, QPalette::Text));
}

void CommandPalette::choose()
{
    if (GetChoice())
        accept();
}

std::function<void()> CommandPalette::GetChoice() const
{
    const QTreeWidgetItem* item = m_List->currentItem();
    if (!item)
        return {};
    const Entry& entry = m_Entries[size_t(item->data(TITLE, entryRole).toInt())];
    return entry.m_Obstacle.isEmpty() ? entry.m_Run : nullptr;
}

bool CommandPalette::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_Letters && event->type() == QEvent::KeyPress) {
        switch (static_cast<QKeyEvent*>(event)->key()) {
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
            QCoreApplication::sendEvent(m_List, event);
            return true;
        default:
            break;
        }
    }
    return QDialog::eventFilter(watched, event);
}
