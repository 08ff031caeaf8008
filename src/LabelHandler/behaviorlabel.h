#pragma once

#include "labelinstance.h"
#include <QColor>
#include <QList>
#include <QObject>
#include <QSet>

class CutSegment;

/// A behaviour class: a name, a colour and its instances in the order of their labelling.
///
/// An instance belongs to the first label that it is added to and lives as long as that label,
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

    bool Contains(CutSegment* segment) const;
    /// Takes the first instance of a segment off the list; false when there is none.
    bool RemoveLabel(CutSegment* segment);
    bool RemoveLabelQuietly(CutSegment* segment);
    /// Takes an instance off the list without a signal; false when it is not on it.
    bool RemoveInstance(LabelInstance* instance) { return m_Instances.removeOne(instance); }

    /// No bounds check.
    LabelInstance* GetInstance(int index) const { return m_Instances.at(index); }
    int GetInstanceCount() const { return m_Instances.size(); }

    QString GetName() const { return m_Name; }
    void SetName(const QString& name) { m_Name = name; }
    QColor GetColor() const { return m_Color; }
    void SetColor(const QColor& color) { m_Color = color; }

signals:
    void CutRemoved(CutSegment* segment);
    void CutAdded(CutSegment* segment);
    void CutsAdded(QList<CutSegment*> segments);

private:
    int indexOf(const CutSegment* segment) const;

    QList<LabelInstance*> m_Instances;
    // Every instance that was ever on the list.
    QSet<LabelInstance*> m_Owned;
    QString m_Name;
    QColor m_Color;
};
