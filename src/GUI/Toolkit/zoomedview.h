#pragma once

#include <QObject>
#include <QSize>

class QScrollArea;
class ZoomWidget;

/// Zooms and scrolls the widget of a scroll area: says what size a zoom slider asks for, and what
/// part of it shows.
///
/// Whoever owns it connects slider and scroll bar. By itself it follows the scroll area when that
/// is resized, and keeps the widget's left end in place.
class ZoomedView : public QObject
{
    Q_OBJECT
public:
    ZoomedView(QScrollArea* scrollArea, ZoomWidget* zoom, QObject* parent = nullptr);

    /// Asks for the size of the present zoom.
    void Resize();
    /// Tells what part shows.
    void UpdateVisiblePart();
    /// The scroll bar has a new range; (0, 0) means that everything shows.
    void UpdateScrollRange(int minimum, int maximum);
    /// The height, in logical pixels, that fits above the scroll bar.
    int GetFittingHeight() const;

signals:
    /// At least one logical pixel both ways.
    void SizeAsked(const QSize& size);
    /// Logical pixels of the widget; -1 in both when everything shows.
    void VisiblePartChanged(int from, int to);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void followScrollArea();
    void restorePlace();
    int widgetWidth() const;

    QScrollArea* m_ScrollArea;
    ZoomWidget* m_Zoom;
    // The widget's left end as a part of its width while the scroll area is resized, else negative.
    double m_PlaceToKeep = -1;
};
