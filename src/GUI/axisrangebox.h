#pragma once

#include <QDoubleSpinBox>

/// A spin box for an axis limit that shows the nearest value it can, but keeps the exact one
/// until the user changes it: a limit with many decimals, or beyond the box's range of -100000
/// to 100000, is not altered by being looked at.
class AxisRangeBox : public QDoubleSpinBox
{
    Q_OBJECT
public:
    explicit AxisRangeBox(double limit, QWidget* parent = nullptr);

    void SetLimit(double limit);
    double GetLimit() const;
    /// Whether the value differs from the one given to SetLimit.
    bool IsEdited() const;

protected:
    /// Without the zeros at the end that a fixed number of decimals brings.
    QString textFromValue(double value) const override;

private:
    double m_Exact = 0;
    double m_Shown = 0;
};
