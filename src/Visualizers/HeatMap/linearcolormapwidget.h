#pragma once

#include <QWidget>

/// The scale of the colours from the lowest to the highest value.
class LinearColorMapWidget : public QWidget
{
    Q_OBJECT
public:
    explicit LinearColorMapWidget(QWidget* parent = nullptr);

    /// The values at both ends, which the tooltip tells.
    void SetRange(double minimum, double maximum);
    double GetMinimum() const { return m_Minimum; }
    double GetMaximum() const { return m_Maximum; }

    QSize sizeHint() const override { return {100, 30}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    double m_Minimum = -1.0;
    double m_Maximum = -1.0;
};
