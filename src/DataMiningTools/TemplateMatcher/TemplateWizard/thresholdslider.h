#pragma once

#include <QWidget>

class QSlider;
class QSpinBox;

/// A threshold in percent, in a spin box beside a slider.
class ThresholdSlider : public QWidget
{
    Q_OBJECT
public:
    explicit ThresholdSlider(int value, QWidget* parent = nullptr);

    /// The confidence of a percentage, in single precision.
    static float ToThreshold(int value) { return float(value) / 100.0F; }

    int GetValue() const;
    /// Without a signal.
    void SetValue(int value);

signals:
    void ValueChanged(int value);

private:
    QSpinBox* m_Spin;
    QSlider* m_Slider;
};
