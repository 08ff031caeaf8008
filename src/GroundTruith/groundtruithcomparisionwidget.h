#pragma once

#include "liverecording.h"
#include "zoomedview.h"
#include <QMainWindow>

class CuttableLinePlotWidget;
class GroundTruithBehaviorCollection;
class GroundTruithWidget;
class AttributeBox;

/// The labels of a reference above the program's own, over the same data and at one zoom, to be
/// compared by eye. Owns nothing that it shows.
class GroundTruithComparisionWidget : public QMainWindow
{
    Q_OBJECT
public:
    explicit GroundTruithComparisionWidget(QWidget* parent = nullptr);

    /// Shows a recording and follows its changes.
    void SetRecording(LiveRecording* recording);
    void SetBehaviorCollection(GroundTruithBehaviorCollection* behaviors);
    /// Shows the first attribute of the data set and offers the others.
    void SetDataSet(DataSet* dataSet);
    void SetLabelCollection(LabelCollection* labels);
    void SetCutCollection(CutCollection* cuts);

public slots:
    /// Gives both views the width that the zoom asks for.
    void resizeLinePlotWidget() { m_View.Resize(); }
    /// Shows an attribute, by its place in the list, in both views.
    void attributeChanged(int index);

private:
    void makeToolBar();
    void makeViews();
    void resizeViews(const QSize& size);

    CutCollection* m_CutCollection = nullptr;
    LabelCollection* m_LabelCollection = nullptr;
    GroundTruithBehaviorCollection* m_BehaviorCollection = nullptr;

    QScrollArea* m_ScrollArea;
    QWidget* m_Views;
    ZoomWidget* m_ZoomWidget;
    AttributeBox* m_Attributes;
    GroundTruithWidget* m_GroundTruith;
    CuttableLinePlotWidget* m_LinePlot;
    ZoomedView m_View;
};

/// Shows a reference labelling, from a file that the user picks, beside the recording's own.
void ShowGroundTruith(const SharedRecording& recording, QWidget* parent);
