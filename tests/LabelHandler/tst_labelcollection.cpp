#include "segmenttext.h"

#include <QSignalSpy>
#include <QTest>

class TestLabelCollection : public QObject
{
    Q_OBJECT
private slots:
    void tellsWhatItAddsAndRemoves();
    void removesACutFromTheFirstBehaviour();
    void findsInstancesAfterChanges();
    void keepsWhatLeftItsLists();
};

void TestLabelCollection::tellsWhatItAddsAndRemoves()
{
    qRegisterMetaType<QList<CutSegment*>>("QList<CutSegment*>");
    CutSegment first(0, 10);
    CutSegment second(10, 20);
    BehaviorLabel label(QStringLiteral("Dive"), Qt::red);
    QSignalSpy added(&label, &BehaviorLabel::CutAdded);
    QSignalSpy allAdded(&label, &BehaviorLabel::CutsAdded);
    QSignalSpy removed(&label, &BehaviorLabel::CutRemoved);
    LabelSegment(label, &first);
    QCOMPARE(added.takeFirst().first().value<CutSegment*>(), &first);
    label.AddLabels({new LabelInstance(&second), new LabelInstance(&first)});
    QCOMPARE(allAdded.size(), 1);
    QCOMPARE(allAdded.first().first().value<QList<CutSegment*>>(),
             QList<CutSegment*>({&second, &first}));
    QCOMPARE(added.size(), 0);
    // Only the first instance of a segment goes, and listeners hear of it while it is there.
    int countWhenTold = 0;
    connect(&label, &BehaviorLabel::CutRemoved, this,
            [&] { countWhenTold = label.GetInstanceCount(); });
    QVERIFY(label.RemoveLabel(&first));
    QCOMPARE(countWhenTold, 3);
    QCOMPARE(label.GetInstanceCount(), 2);
    QCOMPARE(label.GetInstance(0)->GetSegment(), &second);
    QVERIFY(label.Contains(&first));
    QVERIFY(label.RemoveLabel(&first));
    QVERIFY(!label.RemoveLabel(&first));
    QCOMPARE(removed.size(), 2);
}

void TestLabelCollection::removesACutFromTheFirstBehaviour()
{
    CutSegment segment(0, 10);
    LabelCollection labels;
    for (const char* name : {"Rest", "Dive", "Fly"})
        labels.AddLabel(new BehaviorLabel(QLatin1String(name)));
    LabelSegment(*labels.GetLabel(1), &segment);
    LabelSegment(*labels.GetLabel(2), &segment);
    QSignalSpy removed(labels.GetLabel(1), &BehaviorLabel::CutRemoved);
    QVERIFY(labels.RemoveCut(&segment));
    QCOMPARE(removed.size(), 1);
    QVERIFY(labels.GetLabel(2)->Contains(&segment));
    QVERIFY(labels.RemoveCut(&segment));
    QVERIFY(!labels.RemoveCut(&segment));
}

void TestLabelCollection::findsInstancesAfterChanges()
{
    CutSegment first(0, 10);
    CutSegment second(10, 20);
    BehaviorLabel rest;
    BehaviorLabel dive;
    std::vector<LabelInstance*> instances;
    for (CutSegment* segment : {&first, &second, &first}) {
        instances.push_back(new LabelInstance(segment));
        rest.AddLabel(instances.back());
    }
    // Now the second instance is the first one of its segment.
    instances[0]->SetSegment(nullptr);
    instances[1]->SetSegment(&first);
    QVERIFY(!rest.Contains(&second));
    QVERIFY(rest.RemoveLabelQuietly(&first));
    QCOMPARE(rest.GetInstance(1), instances[2]);
    // An instance that is added elsewhere leaves its label, and is freed once.
    dive.AddLabel(instances[2]);
    QVERIFY(!rest.Contains(&first));
    QVERIFY(dive.Contains(&first));
    QVERIFY(!rest.RemoveInstance(instances[2]));
    QVERIFY(rest.RemoveInstance(instances[0]));
    QCOMPARE(rest.GetInstanceCount(), 0);
}

// Whoever still holds them may use them; the leak check sees that they go in the end.
void TestLabelCollection::keepsWhatLeftItsLists()
{
    CutSegment segment(0, 10);
    QPointer<BehaviorLabel> label = new BehaviorLabel(QStringLiteral("Dive"));
    auto* instance = new LabelInstance(&segment);
    {
        LabelCollection labels;
        labels.AddLabel(label);
        labels.AddLabel(label);
        label->AddLabel(instance);
        label->RemoveLabel(&segment);
        labels.RemoveLabel(label);
        QCOMPARE(instance->GetSegment(), &segment);
        QCOMPARE(label->GetName(), QStringLiteral("Dive"));
    }
    QVERIFY(!label);
}

QTEST_GUILESS_MAIN(TestLabelCollection)
#include "tst_labelcollection.moc"
