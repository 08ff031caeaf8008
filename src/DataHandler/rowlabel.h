#pragma once

#include <QString>
#include <QtGlobal>

/// The label of a row in the size of one pointer: a text of its own, or only a row number that
/// becomes text when it is asked for. Millions of imported rows carry numbers.
class RowLabel
{
public:
    RowLabel() = default;
    ~RowLabel() { Clear(); }
    RowLabel(const RowLabel&) = delete;
    RowLabel& operator=(const RowLabel&) = delete;

    void SetText(const QString& text);
    /// number: 0 or above.
    void SetNumber(int number);
    QString ToString() const;
    bool Equals(const QString& text) const;

private:
    bool isNumber() const { return m_Tagged & 1U; }
    // NOLINTNEXTLINE(performance-no-int-to-ptr): the tagged number is the point of this class.
    const QString* text() const { return reinterpret_cast<const QString*>(m_Tagged); }
    void Clear();

    // 0: empty. Odd: the number, shifted left by one. Else an owned QString.
    quintptr m_Tagged = 0;
};
