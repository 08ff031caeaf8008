#include "segmenttext.h"
#include "stoppingprogress.h"
#include "testdata.h"

#include <QTest>
#include <algorithm>
#include <random>
#include <set>

namespace
{

constexpr auto labelled = CutSegment::SEGMENT_LABELED;
constexpr auto plain = CutSegment::SEGMENT_CUT;
constexpr auto result = CutSegment::SEGMENT_RESULT;

struct Segment {
    int m_From;
    int m_To;
    int m_OriginalFrom;
    int m_OriginalTo;
    int m_State;

    Segment(int from, int to, int state = plain)
        : m_From(from), m_To(to), m_OriginalFrom(from), m_OriginalTo(to), m_State(state)
    {
    }
    void MoveFrom(int row) { m_From = m_OriginalFrom = row; }
    void MoveTo(int row) { m_To = m_OriginalTo = row; }
    bool IsFree() const { return m_State != labelled; }
};

// The collection's rules in their plainest form: scans from the front.
class PlainCuts : public std::vector<Segment>
{
public:
    template <class Test>
    int Find(const Test& test) const
    {
        const auto found = std::find_if(begin(), end(), test);
        return found == end() ? -1 : int(found - begin());
    }

    int FindRow(int row) const
    {
        return Find([=](const Segment& s) { return s.m_From <= row && row <= s.m_To; });
    }

    int FindHolder(int from, int to) const
    {
        return Find([=](const Segment& s) { return s.m_From <= from && s.m_To >= to; });
    }

    void Insert(int from, int to, int state)
    {
        const int i = FindHolder(from, to);
        if (i < 0 || from > to)
            return;
        insert(begin() + i + 1, {Segment(from, to, state), Segment(to, At(i).m_To)});
        At(i).m_To = from;
    }

    void Split(int row, int state)
    {
        const int i = FindRow(row);
        if (i < 0)
            return;
        insert(begin() + i + 1, Segment(row, At(i).m_To, state));
        At(i).m_To = row;
    }

    void MergeLabels(int gap)
    {
        for (size_t i = 0; i < size(); ++i) {
            Segment& s = (*this)[i];
            s.m_From = s.m_OriginalFrom;
            s.m_To = s.m_OriginalTo;
            if (i + 1 < size() && (*this)[i + 1].m_OriginalFrom >= s.m_From)
                s.m_To = std::min(s.m_To, (*this)[i + 1].m_OriginalFrom);
        }
        Segment* previous = nullptr;
        for (Segment& s : *this) {
            if (s.IsFree())
                continue;
            if (previous && s.m_From - previous->m_To < gap)
                s.m_From = previous->m_To = (previous->m_To + s.m_From) / 2;
            previous = &s;
        }
    }

    void MergeCuts(int from, int to)
    {
        const auto isInside = [=](int row) { return from < row && row < to; };
        for (int i = 1; size() > 1 && i < int(size()); ++i) {
            const bool toInside = isInside(At(i).m_To) && i + 1 < int(size());
            if (!isInside(At(i).m_From))
                continue;
            At(i).MoveFrom(At(i - 1).m_From);
            if (toInside)
                At(i).MoveTo(At(i + 1).m_To);
            erase(begin() + i - 1);
            if (toInside)
                erase(begin() + i);
        }
    }

    void Remove(int i)
    {
        const Segment cut = At(i);
        const auto other = [&](const Segment& s) { return &s != &At(i); };
        const int left = Find([&](const Segment& s) { return other(s) && s.m_To == cut.m_From; });
        const int right = Find([&](const Segment& s) { return other(s) && s.m_From == cut.m_To; });
        const bool freeLeft = left >= 0 && At(left).IsFree();
        const bool freeRight = right >= 0 && At(right).IsFree();
        if (freeLeft && freeRight) {
            if (At(left).m_State != plain || At(right).m_State != plain)
                return;
            At(left).m_To = At(right).m_To;
            erase(begin() + std::max(i, right));
            erase(begin() + std::min(i, right));
            return;
        }
        if (freeRight)
            At(right).MoveFrom(cut.m_From);
        else if (freeLeft || (left >= 0 && right < 0))
            At(left).m_To = cut.m_To;
        else
            return;
        erase(begin() + i);
    }

    void RemoveAll(int state)
    {
        for (int i = int(size()) - 1; i >= 0; --i) {
            if (i < int(size()) && At(i).m_State == state)
                Remove(i);
        }
    }

    void Move(int rows, int i, int from, int to)
    {
        const int last = int(size()) - 1;
        if (last < 1)
            return;
        At(i).MoveFrom(from);
        At(i).MoveTo(to);
        if (i == 0) {
            At(1).MoveFrom(to);
            if (from != 0)
                insert(begin(), Segment(0, from));
        } else if (i == last) {
            At(i - 1).m_To = from;
            if (to != rows)
                push_back(Segment(from, rows));
        } else {
            At(i - 1).MoveTo(from);
            At(i + 1).MoveFrom(to);
        }
    }

    void Sort()
    {
        std::stable_sort(begin(), end(),
                         [](const Segment& a, const Segment& b) { return a.m_From < b.m_From; });
    }

    Segment& At(int i) { return (*this)[size_t(i)]; }
};

// Clicks at random, on the collection and on its plain twin.
class RandomUser
{
public:
    /// A careful user makes no zero-length segments and moves no ends.
    RandomUser(unsigned seed, int rows, bool isCareful)
        : m_Random(seed), m_Rows(rows), m_IsCareful(isCareful)
    {
        for (int i = 0; i < rows; ++i)
            m_Data.AddRow(new DataRow);
        m_Labels.AddLabel(new BehaviorLabel(QStringLiteral("Dive")));
        m_Labels.AddLabel(new BehaviorLabel(QStringLiteral("Rest")));
        m_Cuts.InsertCut(0, rows, result);
        m_Plain.push_back(Segment(0, rows));
    }

    void Split(int row)
    {
        const auto state = choose(2) ? plain : result;
        m_Cuts.InsertCut(row, state);
        m_Plain.Split(row, state);
    }

    void Click()
    {
        const int index = choose(m_Cuts.GetSegmentCount());
        const int from = choose(m_Rows + 1);
        const int to = from + choose(std::min(m_Rows + 1 - from, choose(2) ? 12 : m_Rows));
        switch (choose(m_IsCareful ? 8 : 14)) {
        case 0:
        case 1:
            if (!m_IsCareful || (from != to && !isBoundary(from) && !isBoundary(to)))
                cut(from, to);
            break;
        case 2:
            if (!m_IsCareful || !isBoundary(from))
                Split(from);
            break;
        case 3:
        case 4:
            changeLabel(index);
            break;
        case 5:
            m_Cuts.RemoveSegment(m_Cuts.GetSegment(index));
            m_Plain.Remove(index);
            break;
        case 6:
            m_Cuts.MergeCuts(from, to);
            m_Plain.MergeCuts(from, to);
            break;
        case 7:
            changeAll(choose(6));
            break;
        case 8:
            m_Cuts.MoveSegment(&m_Data, m_Cuts.GetSegment(index), from, to);
            m_Plain.Move(m_Rows, index, from, to);
            break;
        case 9:
            splitMany();
            break;
        case 10:
            cutMany();
            break;
        default:
            changeEnd(index, from);
        }
    }

    // Empty while all is well.
    QString Complaint()
    {
        if (!m_Complaint.isEmpty())
            return m_Complaint + ToText(m_Cuts);
        if (m_Cuts.GetSegmentCount() != int(m_Plain.size()))
            return QStringLiteral("count: ") + ToText(m_Cuts);
        for (int i = 0; i < m_Cuts.GetSegmentCount(); ++i) {
            CutSegment& s = *m_Cuts.GetSegment(i);
            const Segment& p = m_Plain.At(i);
            if (s.GetFrom() != p.m_From || s.GetTo() != p.m_To || s.GetState() != p.m_State ||
                s.GetOriginalFrom() != p.m_OriginalFrom || s.GetOriginalTo() != p.m_OriginalTo)
                return QStringLiteral("segment %1: ").arg(i) + ToText(m_Cuts);
            const int holders =
                m_Labels.GetLabel(0)->Contains(&s) + m_Labels.GetLabel(1)->Contains(&s);
            if (holders != int(s.GetState() == labelled))
                return QStringLiteral("%1 labels: ").arg(holders) + ToText(m_Cuts);
        }
        return m_IsCareful ? partitionComplaint() : lookUpComplaint();
    }

private:
    int choose(int count) { return int(m_Random() % unsigned(count)); }

    bool isBoundary(int row) const
    {
        const auto ends = [=](const Segment& s) { return s.m_From == row || s.m_To == row; };
        return m_Plain.Find(ends) != -1;
    }

    void cut(int from, int to)
    {
        const auto state = choose(2) ? plain : result;
        m_Cuts.InsertCut(from, to, state);
        m_Plain.Insert(from, to, state);
    }

    // Inside and outside the recording, at boundaries, and some of them several times.
    int someRow()
    {
        return choose(3) ? choose(m_Rows + 4) - 2
                         : m_Plain.At(choose(std::min(9, int(m_Plain.size())))).m_To;
    }

    // All at once, on the twin one by one.
    void splitMany()
    {
        std::vector<int> rows(size_t(choose(40)));
        std::vector<RowSpan> cuts;
        for (int& row : rows) {
            row = someRow();
            cuts.push_back({row, row});
        }
        review(cuts);
        std::vector<CutSegment*> before;
        for (int i = 0; i < m_Cuts.GetSegmentCount(); ++i)
            before.push_back(m_Cuts.GetSegment(i));
        StoppingProgress stop(1);
        if (!rows.empty() && m_Cuts.InsertCutsAt(rows, plain, stop))
            m_Complaint = QStringLiteral("not stopped: ");
        const auto state = choose(2) ? plain : result;
        m_Cuts.InsertCutsAt(rows, state);
        for (const int row : rows)
            m_Plain.Split(row, state);
        // Old segments keep their order; what stands between them is new.
        size_t old = 0;
        for (int i = 0; i < m_Cuts.GetSegmentCount(); ++i) {
            if (old < before.size() && m_Cuts.GetSegment(i) == before[old])
                ++old;
            else if (m_Cuts.GetSegment(i)->GetColor() != Qt::black)
                m_Complaint = QStringLiteral("colour of %1: ").arg(i);
        }
        if (old != before.size())
            m_Complaint = QStringLiteral("other order: ");
    }

    void cutMany()
    {
        std::vector<int> rows(size_t(2 + choose(12)));
        for (int& row : rows)
            row = someRow();
        std::sort(rows.begin(), rows.end());
        std::vector<RowSpan> cuts;
        for (size_t i = 1; i < rows.size(); ++i)
            cuts.push_back({rows[i - 1], rows[i]});
        review(cuts);
        m_Cuts.InsertRanges(cuts, result);
        for (const RowSpan& span : cuts)
            m_Plain.Insert(span.m_From, span.m_To, result);
    }

    void review(const std::vector<RowSpan>& cuts)
    {
        const CutReview review = *m_Cuts.ReviewCuts(cuts);
        int count = 0;
        std::set<int> inLabels;
        for (size_t i = 0; i < cuts.size(); ++i) {
            const int holder = m_Plain.FindHolder(cuts[i].m_From, cuts[i].m_To);
            count += int(holder >= 0);
            if (holder >= 0 && m_Plain.At(holder).m_State == labelled &&
                cuts[i].m_From < m_Plain.At(holder).m_To)
                inLabels.insert(int(i));
        }
        if (count != review.m_Count ||
            inLabels != std::set<int>(review.m_InLabels.begin(), review.m_InLabels.end()))
            m_Complaint = QStringLiteral("another review: ");
    }

    void changeLabel(int index)
    {
        CutSegment* segment = m_Cuts.GetSegment(index);
        if (m_Labels.RemoveCut(segment))
            segment->SetState(plain);
        else
            LabelSegment(*m_Labels.GetLabel(choose(2)), segment);
        m_Plain.At(index).m_State = segment->GetState();
    }

    void changeAll(int kind)
    {
        if (kind == 0) {
            m_Cuts.RemoveSegments(result);
            m_Plain.RemoveAll(result);
        } else if (kind == 1 && !m_IsCareful) {
            const int gap = choose(20);
            m_Cuts.MergeLabels(gap);
            m_Plain.MergeLabels(gap);
        } else if (kind == 2) {
            m_Cuts.Sort();
            m_Plain.Sort();
        }
    }

    // As somebody outside the collection would.
    void changeEnd(int index, int row)
    {
        CutSegment* segment = m_Cuts.GetSegment(index);
        Segment& twin = m_Plain.At(index);
        switch (choose(4)) {
        case 0:
            return segment->SetFrom(twin.m_From = row);
        case 1:
            return segment->SetTo(twin.m_To = row);
        case 2:
            twin.MoveFrom(row);
            return segment->MoveFrom(row);
        default:
            twin.MoveTo(row);
            return segment->MoveTo(row);
        }
    }

    QString partitionComplaint()
    {
        int end = 0;
        for (int i = 0; i < m_Cuts.GetSegmentCount(); ++i) {
            if (m_Cuts.GetSegment(i)->GetFrom() != end || m_Cuts.GetSegment(i)->GetLength() < 1)
                return QStringLiteral("no partition: ") + ToText(m_Cuts);
            end = m_Cuts.GetSegment(i)->GetTo();
        }
        return end == m_Rows ? QString() : QStringLiteral("short: ") + ToText(m_Cuts);
    }

    QString lookUpComplaint()
    {
        const int row = choose(m_Rows + 2);
        const int to = row + choose(20);
        int index = -1;
        const CutSegment* found = m_Cuts.FindSegment(row, index);
        if ((found ? index : -1) != m_Plain.FindRow(row) ||
            m_Cuts.IndexOf(found) != (found ? index : -1))
            return QStringLiteral("row %1: ").arg(row) + ToText(m_Cuts);
        const QList<CutSegment*> inside = m_Cuts.GetSegments(row, to);
        int foundInside = 0;
        int touching = -1;
        bool isRight = true;
        for (int i = 0; i < int(m_Plain.size()); ++i) {
            const Segment& p = m_Plain.At(i);
            if (p.m_From >= row && p.m_To <= to)
                isRight &= inside.value(foundInside++) == m_Cuts.GetSegment(i);
            if (p.m_From <= to && p.m_To >= row)
                isRight &= (touching = m_Cuts.FindNextTouching(row, to, touching + 1)) == i;
        }
        isRight &= foundInside == inside.size();
        isRight &= m_Cuts.FindNextTouching(row, to, touching + 1) == -1;
        return isRight ? QString()
                       : QStringLiteral("rows %1 to %2: ").arg(row).arg(to) + ToText(m_Cuts);
    }

    std::mt19937 m_Random;
    const int m_Rows;
    const bool m_IsCareful;
    DataSet m_Data;
    CutCollection m_Cuts;
    PlainCuts m_Plain;
    LabelCollection m_Labels;
    QString m_Complaint;
};

} // namespace

class TestCutSteps : public QObject
{
    Q_OBJECT
private slots:
    void follows_data();
    void follows();
};

void TestCutSteps::follows_data()
{
    QTest::addColumn<int>("seeds");
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("cuts");
    QTest::addColumn<int>("steps");
    QTest::newRow("few segments") << 300 << 60 << 0 << 200;
    QTest::newRow("many segments") << 12 << 4000 << 900 << 300;
}

// Whatever a user does, and in whatever order, the collection does as its rules say.
void TestCutSteps::follows()
{
    QFETCH(int, seeds);
    QFETCH(int, rows);
    QFETCH(int, cuts);
    QFETCH(int, steps);
    for (int seed = 0; seed < seeds; ++seed) {
        RandomUser user(unsigned(seed), rows, seed % 2 == 0);
        for (int i = 1; i <= cuts; ++i)
            user.Split(i * (rows / (cuts + 1)));
        for (int step = 0; step < steps; ++step) {
            user.Click();
            const QString complaint = user.Complaint();
            QVERIFY2(
                complaint.isEmpty(),
                qPrintable(
                    QStringLiteral("seed %1, step %2, %3").arg(seed).arg(step).arg(complaint)));
        }
    }
}

QTEST_GUILESS_MAIN(TestCutSteps)
#include "tst_cutsteps.moc"
