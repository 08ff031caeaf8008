#pragma once

#include "segmenttablemodel.h"
#include <QWidget>

class AttributeBox;
class CutCollection;
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
    /// Offers the attributes of the data set anew, the first one chosen.
    void RebuildAttributes();
    /// Offers the attributes that there are now; the choice stays.
    void UpdateAttributes();
    /// Makes all layouts show that attribute.
    void ShowAttribute(int attribute);

    /// Shows these segments and no others; rows and lines that are right already stay.
    void Show(const std::vector<ShownSegment>& segments);
    /// A segment that is there already is passed over.
    void Add(const ShownSegment& segment);
    /// Segments that are not there are passed over.
    void Remove(const QList<CutSegment*>& segments);
    void Clear();
    /// Between the two, the table is not brought up to date.
    void BeginBulk();
    void EndBulk();

signals:
    void AttributeChanged(int attribute);

private:
    QLayout* makeChoosers();

    AttributeBox* m_Attribute;
    QComboBox* m_Layout;
    QStackedWidget* m_Stack;
    TableResultWidget* m_Table;
    MultipleLinePlotWidget* m_Overlay;
    DataSet* m_DataSet = nullptr;
    CutCollection* m_CutCollection = nullptr;
};
