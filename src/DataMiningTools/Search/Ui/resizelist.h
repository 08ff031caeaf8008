#pragma once

#include "searchmatch.h"
#include <QAbstractScrollArea>
#include <map>
#include <vector>

class DataSet;
class QLabel;
class SegmentResizeWidget;

/// Matches below each other, each with boxes for its ends. There are widgets only for those in
/// view and one more on either side; the ends of all others are plain numbers.
class ResizeList : public QAbstractScrollArea
{
    Q_OBJECT
public:
    explicit ResizeList(DataSet* dataSet, QWidget* parent = nullptr);

    void SetMatches(const SearchMatches& matches);
    /// With the ends as the user has changed them, also in the wrong order.
    const SearchMatches& GetMatches() const { return m_Matches; }
    /// The attribute plotted.
    void SetAttribute(int attribute);

signals:
    /// The user has changed the ends of a match.
    void EndsChanged();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    struct Item {
        QWidget* m_Widget;
        QLabel* m_Caption;
        SegmentResizeWidget* m_Resize;
    };
    Item makeItem();
    SegmentResizeWidget* makeResizeWidget();
    Item takeItem(int index);
    void storeEnds(const SegmentResizeWidget* resize);
    void updateItems();
    void dropItems(int first, int last);
    void placeItem(int index, QWidget* widget) const;
    void orderFocus();
    void measure();
    void showFocused(const QWidget* focused);

    DataSet* m_DataSet;
    SearchMatches m_Matches;
    int m_Attribute = 0;
    // Those in view, by the index of their match, and those that can be taken for others.
    std::map<int, Item> m_Items;
    std::vector<Item> m_SpareItems;
    int m_ItemHeight;
};
