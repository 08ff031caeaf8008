#pragma once

#include <QWidget>

class PlotAreaLabelWidget;
class QScrollArea;
class ZoomWidget;

/// A plot area with labels that can be zoomed and scrolled.
class PlotZoomWidget : public QWidget
{
    Q_OBJECT
public:
    explicit PlotZoomWidget(QWidget* parent = nullptr);

    PlotAreaLabelWidget* GetPlotArea() const { return m_PlotArea; }

public slots:
    /// Gives the plots the size that the zoom asks for.
    void resizeLinePlotWidget();
    void sliderRange(int minimum, int maximum);
    /// Tells the plots what part of them shows.
    void updateSelection();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    ZoomWidget* m_ZoomWidget;
    QScrollArea* m_ScrollArea;
    PlotAreaLabelWidget* m_PlotArea;
};
