#include "datatransformer.h"
#include "dtw.h"
#include "signaltemplatedataobject.h"
#include "testdata.h"
#include <QtTest>

using Values = std::vector<double>;

class TestDataTransformer : public QObject
{
    Q_OBJECT
private slots:
    void copiesAndDifferences();
    void removesTheLocalMean();
    void warpsTime();
};

static Values toVector(const std::unique_ptr<double[]>& values, int size)
{
    return Values(values.get(), values.get() + size);
}

void TestDataTransformer::copiesAndDifferences()
{
    const auto data = MakeDataSet("1 5\n4 6\n9 8\n16 7");
    int size = -1;
    const auto copy = DataTransformer(0).TransformData(data.get(), 1, 4, 1, size);
    QCOMPARE(toVector(copy, size), Values({6, 8, 7}));
    const auto steps = DataTransformer(1).TransformData(data.get(), 1, 4, 0, size);
    QCOMPARE(toVector(steps, size), Values({5, 7}));
    QVERIFY(!DataTransformer(3).TransformData(data.get(), 0, 4, 0, size));
    const int outside[][3] = {{-1, 2, 0}, {0, 5, 0}, {3, 2, 0}, {0, 4, 2}, {0, 4, -1}};
    for (const auto& range : outside) {
        QVERIFY(!DataTransformer(0).TransformData(data.get(), range[0], range[1], range[2], size));
        QCOMPARE(size, 0);
    }
}

// Expected numbers: worked by hand from sums of 0 to n.
void TestDataTransformer::removesTheLocalMean()
{
    Values values;
    for (int i = 0; i < 50; ++i)
        values.push_back(i);
    int size = -1;
    const auto array = DataTransformer(2).TransformData(values.data(), 50, size);
    QCOMPARE(size, 50);
    QCOMPARE(array[0], 0 - 120 / 32.0);
    QCOMPARE(array[20], 20 - (4 + 35) * 16 / 32.0);
    QCOMPARE(array[49], 49 - (33 + 49) * 8.5 / 32.0);
    // The mean is that of the first rows also for later ones.
    const auto rows = DataTransformer(2).TransformData(MakeColumn(values).get(), 10, 30, 0, size);
    QCOMPARE(size, 20);
    QCOMPARE(rows[0], 10 - 120 / 32.0);
    QCOMPARE(rows[19], 29 - (3 + 19) * 8.5 / 32.0);
}

void TestDataTransformer::warpsTime()
{
    const auto data = MakeDataSet("2\n1\n4\n7\n3\n0");
    SignalTemplateDataObject signal;
    const double values[] = {1, 4, 7, 3};
    signal.SetSignal(values, 4);
    // By the table of distances in numpy: 25 for four rows, 19 for three, 49 for two, 1e20 for one.
    std::vector<float> results(7, 7.0F);
    DTW(data.get(), &signal).ComputeDTW(0, results.data(), 0, 6);
    QCOMPARE(results, std::vector<float>({6e-20F, 6e-20F, 6e-20F, 0.0F, 3e-19F, 1.0F, 7.0F}));
    DTW(data.get(), &signal).ComputeDTW(1, results.data(), 0, 6);
    QCOMPARE(results, std::vector<float>({0, 0, 0, 0, 0, 0, 7}));
}

QTEST_GUILESS_MAIN(TestDataTransformer)
#include "tst_datatransformer.moc"
