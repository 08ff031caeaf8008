#pragma once

#include "recording.h"
#include <QObject>
#include <memory>

/// A recording that is open in the program, and the one place that tells of its changes: who
/// changes segments, labels or attributes says so here, once, and every view of it listens.
///
/// Shared by the main window and by every window that shows it; the last one frees it.
class LiveRecording : public QObject, public std::enable_shared_from_this<LiveRecording>
{
    Q_OBJECT
public:
    enum Kind {
        NOTHING = 0,
        SEGMENTS = 1,  ///< segments are new or gone, or have other ends or states
        LABELS = 2,    ///< behaviours or their instances are new or gone, or look different
        ATTRIBUTES = 4 ///< columns are new, gone or computed anew, or their axes have other limits
    };
    Q_DECLARE_FLAGS(Kinds, Kind)

    /// Holds back what is told of a recording while it lives, so that a change in many steps is
    /// told once, at its end. The outermost one counts; null is fine.
    class Hold
    {
    public:
        explicit Hold(LiveRecording* recording);
        ~Hold();
        Hold(const Hold&) = delete;
        Hold& operator=(const Hold&) = delete;

    private:
        LiveRecording* m_Recording;
    };

    explicit LiveRecording(std::unique_ptr<DataSet> dataSet);

    DataSet* GetDataSet() const { return m_Recording.GetDataSet(); }
    CutCollection* GetCutCollection() { return m_Recording.GetCutCollection(); }
    LabelCollection* GetLabelCollection() { return m_Recording.GetLabelCollection(); }
    /// Whoever adds or removes attributes here tells it.
    AttributeColumns& GetColumns() { return m_Recording.GetColumns(); }
    Labelling GetLabelling() { return m_Recording.GetLabelling(); }

    /// Tells each kind by its signal, attributes first: who shows segments reads them.
    void Tell(Kinds kinds);

public slots:
    void TellSegments() { Tell(SEGMENTS); }
    /// A label is also a state of its segment.
    void TellLabels() { Tell(Kinds(SEGMENTS) | LABELS); }

signals:
    void AttributesChanged();
    void LabelsChanged();
    void SegmentsChanged();

private:
    Recording m_Recording;
    int m_Holds = 0;
    Kinds m_HeldBack;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(LiveRecording::Kinds)

using SharedRecording = std::shared_ptr<LiveRecording>;

/// The parts of a recording, null without one.
inline DataSet* DataOf(const LiveRecording* recording)
{
    return recording ? recording->GetDataSet() : nullptr;
}
inline CutCollection* CutsOf(LiveRecording* recording)
{
    return recording ? recording->GetCutCollection() : nullptr;
}
inline LabelCollection* LabelsOf(LiveRecording* recording)
{
    return recording ? recording->GetLabelCollection() : nullptr;
}
