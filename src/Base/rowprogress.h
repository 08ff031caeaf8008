#pragma once

#include "progress.h"
#include <algorithm>
#include <limits>

/// Tells how far a walk over many rows has come, and asks whether it shall go on, but only now and
/// then: rows are quick, telling is not.
class RowProgress
{
public:
    /// rows: how many there are in all.
    RowProgress(Progress& progress, qint64 rows) : m_Progress(progress)
    {
        m_Progress.SetRange(0, toInt(rows));
    }

    /// So many more rows are done. False when whoever waits wants the work to end, and from then
    /// on.
    bool Advance(qint64 rows = 1)
    {
        m_Done += rows;
        if (m_Done >= m_NextTold) {
            m_NextTold = m_Done + m_Interval;
            m_Progress.SetValue(toInt(m_Done));
            m_IsStopped = m_IsStopped || m_Progress.IsStopRequested();
        }
        return !m_IsStopped;
    }
    bool IsStopped() const { return m_IsStopped; }
    /// Tells, and asks, each time that so many rows are done: fewer for rows that take long.
    void SetInterval(qint64 rows)
    {
        m_Interval = rows;
        m_NextTold = std::min(m_NextTold, m_Done + rows);
    }

private:
    static int toInt(qint64 rows)
    {
        return int(std::min<qint64>(rows, std::numeric_limits<int>::max()));
    }

    Progress& m_Progress;
    qint64 m_Done = 0;
    qint64 m_NextTold = 0;
    qint64 m_Interval = 1024;
    bool m_IsStopped = false;
};
