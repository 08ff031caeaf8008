#pragma once

#include "lineplotwidget.h"
#include "rowspan.h"
#include <QList>

/// A plot with a window of a fixed number of rows that follows the mouse.
class WindowLinePlot : public LinePlotWidget
{
    Q_OBJECT
public:
    explicit WindowLinePlot(int attribute, QWidget* parent = nullptr);

    void SetWindowSize(int rows);
    int GetWindowSize() const { return m_WindowSize; }
    /// The rows of the window; false while the mouse is not known.
    bool GetSelection(int& from, int& to) const;

    /// Samples that were taken before, drawn in blue.
    void AddSample(int from, int to);
    void ClearSamples();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    void paintRows(QPainter& painter, const RowSpan& rows, const QColor& color) const;

    int m_WindowSize = 10;
    int m_MouseX = -1;
    QList<RowSpan> m_Samples;
};
