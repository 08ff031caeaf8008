#pragma once

#include "instancelist.h"
#include "labelinstance.h"
#include <QColor>
#include <QList>
#include <QObject>
#include <QSet>

class CutSegment;

/// A behaviour class: a name, a colour and its instances in the order of their labelling.
///
/// An instance belongs to the label that it was added to last and lives as long as that label,
/// also after it has left the list: views may still hold it.
class BehaviorLabel : public QObject
{
    Q_OBJECT
public:
    explicit BehaviorLabel(const QString& name = QString(), const QColor& color = Qt::black);
    ~BehaviorLabel() override;

    /// Appends an instance and takes ownership of it.
    void AddLabel(LabelInstance* instance);
    void AddLabelQuietly(LabelInstance* instance);
    /// Appends all and tells it in one signal.
    void AddLabels(const QList<LabelInstance*>& instances);

    bool Contains(const CutSegment* segment) const { return FindInstance(segment) != -1; }
    /// The index of the first instance of a segment, or -1.
    int FindInstance(const CutSegment* segment) const { return m_Instances.FindSegment(segment); }
    /// Takes the first instance of a segment off the list; false when there is none.
    bool RemoveLabel(CutSegment* segment);
    bool RemoveLabelQuietly(CutSegment* segment);
    /// Takes an instance off the list without a signal; false when it is not on it.
    bool RemoveInstance(LabelInstance* instance);

    /// No bounds check.
    LabelInstance* GetInstance(int index) const { return m_Instances.Get(index); }
    int GetInstanceCount() const { return m_Instances.GetCount(); }

    QString GetName() const { return m_Name; }
    void SetName(const QString& name) { m_Name = name; }
    QColor GetColor() const { return m_Color; }
    void SetColor(const QColor& color) { m_Color = color; }

    /// An instance no longer stands for segment; called by the instance.
    void SegmentChanged(LabelInstance* instance, CutSegment* segment);

signals:
    void CutRemoved(CutSegment* segment);
    void CutAdded(CutSegment* segment);
    void CutsAdded(QList<CutSegment*> segments);

private:
    void takeOwnership(LabelInstance* instance);

    InstanceList m_Instances;
    // Every instance that was ever on the list.
    QSet<LabelInstance*> m_Owned;
    QString m_Name;
    QColor m_Color;
};
