#pragma once

#include "liverecording.h"
#include <QPointer>
#include <QWidget>

class ClassWidget;
class QHBoxLayout;
class QPushButton;
class QTabWidget;

/// One tab for each behaviour, in which its labels stand, and what can be done with a behaviour.
class LabeledDataTabWidget : public QWidget
{
    Q_OBJECT
public:
    explicit LabeledDataTabWidget(QWidget* parent = nullptr);

    /// Shows the behaviours of a recording and follows its changes; null lets go of it.
    void SetRecording(LiveRecording* recording);
    /// The parts of a recording one by one, for a panel that nobody tells of changes. Each may be
    /// null; another label collection takes all tabs away.
    void SetDataSet(DataSet* dataSet);
    void SetCutCollection(CutCollection* cuts);
    void SetLabelCollection(LabelCollection* labels);
    /// Makes a tab for each behaviour that is there now.
    void Rebuild();
    void AddAttribute(int index, const QString& name);
    /// Makes a behaviour in the next colour, and its tab. Null without a label collection; the
    /// name may be in use already.
    BehaviorLabel* AddGroup(const QString& name);
    /// Reads all segments anew, after their ends have moved.
    void Refresh();

public slots:
    void addNewGroup();
    void statsGroup();
    void deleteGroup();
    void editGroup();
    void exportGroup();

signals:
    void SegmentsUpdated();
    void ShowSelected(int from, int to);
    void NewResultsFound();

private:
    QLayout* makeButtons();
    void enableButtons();
    void synchronize();
    void insertTab(int index, BehaviorLabel* label);
    void removeTab(int index);
    void removeTabs();
    int findTab(const BehaviorLabel* label) const;
    ClassWidget* classAt(int tab) const;
    /// The tab on top when it still shows a behaviour, else null.
    ClassWidget* currentClass() const;

    QPointer<LiveRecording> m_Recording;
    DataSet* m_DataSet = nullptr;
    LabelCollection* m_LabelCollection = nullptr;
    CutCollection* m_CutCollection = nullptr;
    QTabWidget* m_Tabs;
    QPushButton* m_AddButton = nullptr;
    // Those that act on the tab on top.
    QList<QPushButton*> m_GroupButtons;
};
