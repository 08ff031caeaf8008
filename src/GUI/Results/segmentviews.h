#pragma once

#include <QWidget>

class CutCollection;
class CutSegment;
class DataSet;
class MultipleLinePlotWidget;
class QComboBox;
class QStackedWidget;
class TableResultWidget;

/// The segments of a panel in several layouts, of which one is on top, for one attribute of the
/// data set. The user picks both.
class SegmentViews : public QWidget
{
    Q_OBJECT
public:
    explicit SegmentViews(QWidget* parent = nullptr);

    TableResultWidget* GetTable() const { return m_Table; }
    MultipleLinePlotWidget* GetOverlay() const { return m_Overlay; }
    /// Adds a layout to choose from and takes ownership of its widget.
    void AddLayout(const QString& name, QWidget* widget);

    /// Another data set or collection takes all segments out.
    void SetDataSet(DataSet* dataSet);
    void SetCutCollection(CutCollection* cuts);
    /// Offers the attributes of the data set anew.
    void RebuildAttributes();
    void AddAttribute(int index, const QString& name);
    /// -1 without attributes.
    int GetAttribute() const;
    /// Makes all layouts show that attribute.
    void ShowAttribute(int attribute);

    /// A segment that is there already is passed over.
    void Add(CutSegment* segment, const QColor& rowColor, const QColor& lineColor);
    /// Segments that are not there are passed over.
    void Remove(const QList<CutSegment*>& segments);
    /// Takes the segment out of the views, but for the one that says so itself.
    void RemoveFromOthers(CutSegment* segment, const QObject* sender);
    void Clear();
    /// Between the two, the table is not brought up to date.
    void BeginBulk();
    void EndBulk();

signals:
    void AttributeChanged(int attribute);

private:
    QLayout* makeChoosers();
    void sayAttribute();

    QComboBox* m_Attribute;
    QComboBox* m_Layout;
    QStackedWidget* m_Stack;
    TableResultWidget* m_Table;
    MultipleLinePlotWidget* m_Overlay;
    DataSet* m_DataSet = nullptr;
    CutCollection* m_CutCollection = nullptr;
};
