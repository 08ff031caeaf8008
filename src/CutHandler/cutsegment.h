#pragma once

#include <QColor>
#include <QObject>

class SegmentList;

/// The present and the stored ends of a segment.
struct SegmentEnds {
    int m_From = 0;
    int m_To = 0;
    int m_OriginalFrom = 0;
    int m_OriginalTo = 0;

    bool operator==(const SegmentEnds& other) const
    {
        return m_From == other.m_From && m_To == other.m_To &&
               m_OriginalFrom == other.m_OriginalFrom && m_OriginalTo == other.m_OriginalTo;
    }
};

/// A span of rows, from a first row up to an end row that it shares with its right neighbour.
class CutSegment : public QObject
{
    Q_OBJECT
public:
    enum SEGMENT_STATE {
        SEGMENT_LABELED = 0, ///< belongs to a BehaviorLabel, drawn in its colour
        SEGMENT_CUT = 1,     ///< plain cut
        SEGMENT_RESULT = 2   ///< candidate of a search that awaits a decision, drawn gray
    };

    CutSegment(int from, int to) : m_OriginalFrom(from), m_OriginalTo(to), m_From(from), m_To(to) {}

    int GetFrom() const { return m_From; }
    int GetTo() const { return m_To; }
    int GetLength() const { return m_To - m_From; }
    /// The ends as of creation or the last Move, to which merged labels return.
    int GetOriginalFrom() const { return m_OriginalFrom; }
    int GetOriginalTo() const { return m_OriginalTo; }
    SegmentEnds GetEnds() const { return {m_From, m_To, m_OriginalFrom, m_OriginalTo}; }

    /// Set changes the present end only, Move the stored one too.
    void SetFrom(int from) { setEnds(from, m_To); }
    void SetTo(int to) { setEnds(m_From, to); }
    void MoveFrom(int from)
    {
        m_OriginalFrom = from;
        setEnds(from, m_To);
    }
    void MoveTo(int to)
    {
        m_OriginalTo = to;
        setEnds(m_From, to);
    }

    SEGMENT_STATE GetState() const { return m_State; }
    void SetState(SEGMENT_STATE state) { m_State = state; }
    QColor GetColor() const { return m_Color; }
    void SetColor(const QColor& color) { m_Color = color; }

    /// The list that the segment is in and that hears of its changes, or null; set by the list.
    SegmentList* GetList() const { return m_List; }
    void SetList(SegmentList* list) { m_List = list; }

private:
    void setEnds(int from, int to);

    SEGMENT_STATE m_State = SEGMENT_CUT;
    int m_OriginalFrom;
    int m_OriginalTo;
    int m_From;
    int m_To;
    QColor m_Color = Qt::black;
    SegmentList* m_List = nullptr;
};
