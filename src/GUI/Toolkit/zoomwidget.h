#pragma once

#include <QWidget>

class QSlider;

/// A zoom slider between a zoom-out and a zoom-in button.
class ZoomWidget : public QWidget
{
    Q_OBJECT
public:
    explicit ZoomWidget(QWidget* parent = nullptr);

    void setMinimum(int minimum);
    void setMaximum(int maximum);
    void setSingleStep(int step);
    void setValue(int value);
    int value() const;

public slots:
    void incrementZoom();
    void decrementZoom();

signals:
    void ValueChanged(int value);

private:
    QSlider* m_Slider;
};
