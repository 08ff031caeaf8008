#pragma once

#include "attributelook.h"
#include "plotmargin.h"
#include "rowspan.h"
#include <QString>
#include <memory>

class AmplitudeLine;
class CutCollection;
class QPainter;
class TimeAxis;
class VerticalAxis;

/// A line with its axes in a given space: one attribute of a data set, or an array.
class LinePlot
{
public:
    /// attribute: -1 for array plots.
    explicit LinePlot(int attribute = -1);

    /// Paints with the line limited to the rows from up to, but without, to.
    virtual void Paint(QPainter& painter, int from, int to, bool grid);
    virtual void Paint(QPainter& painter, bool grid);
    virtual ~LinePlot();
    LinePlot(const LinePlot&) = delete;
    LinePlot& operator=(const LinePlot&) = delete;

    void SetDataSet(DataSet* data);
    DataSet* GetDataSet() const { return m_DataSet; }
    /// Shows an array, which stays the caller's.
    void SetData(double* values, int size, const QString& name);
    void SetAttribute(int attribute);
    int GetAttribute() const { return m_AttributeId; }
    /// Finds the attribute again by its name, after attributes have come or gone, and takes what
    /// has changed about it. False when it looks as before.
    bool FollowAttribute();
    /// The attribute that is shown was removed; nothing is painted until it comes back.
    bool HasLostAttribute() const { return m_HasLostAttribute; }
    /// Reads the limits of the vertical axis anew.
    void ResetAxis();
    void SetRange(int from, int to);
    /// -1 in both until there is data.
    RowSpan GetRange() const { return {m_From, m_To}; }

    void SetSize(float height, float width);
    void SetHeight(float height);
    void SetWidth(float width);
    void SetLeftMargin(int margin);
    void SetTopMargin(int margin);
    void SetRightMargin(int margin);

    /// Takes ownership; the new axis gets the place of the old one, but keeps its own points.
    void SetTimeAxis(TimeAxis* axis);
    /// A SlittedAxis, or a linear one for 0, with the point count of the present axis.
    void SetSlitted(int slitted);
    /// The same by the number of an axis type. The new axis is given what GetLastIndex returns
    /// as its number of points, so that the axis loses one point at each change.
    void ChangeAxisType(int axisType);
    void ShowVerticalAxis(bool show) { m_ShowVerticalAxis = show; }

    TimeAxis* GetTimeAxis() const { return m_TimeAxis.get(); }
    VerticalAxis* GetVerticalAxis() const { return m_VerticalAxis.get(); }
    AmplitudeLine* GetAmplitudeLine() const { return m_AmplitudeLine.get(); }

    /// Rows stand at their absolute place on the time axis, whatever range is painted.
    virtual bool HasAbsoluteRows() const { return false; }
    /// The segments, and whether labelled ones stand in their place: for plots that know segments.
    virtual void SetCutCollection(CutCollection*) {}
    virtual void SetShowLabeled(bool) {}

protected:
    void setAmplitudeLine(std::unique_ptr<AmplitudeLine> line);
    bool hasAttribute() const;
    void UpdateLayout();

    bool m_ShowVerticalAxis = true;
    double* m_Data = nullptr;
    DataSet* m_DataSet = nullptr;
    int m_AttributeId;
    float m_Height = 0;
    float m_Width = 0;
    std::unique_ptr<VerticalAxis> m_VerticalAxis;
    std::unique_ptr<TimeAxis> m_TimeAxis;
    int m_Slitted = 0;
    std::unique_ptr<AmplitudeLine> m_AmplitudeLine;
    int m_From = -1;
    int m_To = -1;
    int m_LeftMargin = PlotLeftMargin;
    int m_TopMargin = 9;
    int m_RightMargin = -5;

private:
    void paintAll(QPainter& painter, bool grid);
    void setArrayLimits();

    int m_DataSize = 0;
    // As of the last reset of the axis.
    AttributeLook m_Look;
    bool m_HasLostAttribute = false;
};
