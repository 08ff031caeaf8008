#include "colormaps.h"
#include <QtTest>
#include <cmath>

class TestColorMaps : public QObject
{
    Q_OBJECT
private slots:
    void colors_data();
    void colors();
};

void TestColorMaps::colors_data()
{
    QTest::addColumn<int>("scheme");
    QTest::addColumn<float>("value");
    QTest::addColumn<float>("red");
    QTest::addColumn<float>("green");
    QTest::addColumn<float>("blue");
    const auto row = [](const char* name, int scheme, float value, float r, float g, float b) {
        QTest::newRow(name) << scheme << value << r << g << b;
    };
    // Scheme 0 worked by hand from its ramps; the others are their stops, blended.
    row("rainbow starts blue", 0, 0, 0, 0, 1);
    row("rainbow cyan", 0, 0.25F, 0, 1, 1);
    row("rainbow green", 0, 0.5F, 0, 1, 0);
    row("rainbow ends red", 0, 1, 1, 0, 0);
    row("clamped above", 0, 7, 1, 0, 0);
    row("interval starts blue", 1, 0, 0, 0, 1);
    row("interval middle", 1, 0.5F, 0, 1, 0);
    row("interval ends red", 1, 1, 1, 0, 0);
    row("blue to yellow", 2, 1, 1, 1, 0);
    row("yellow first", 3, 0, 1, 1, 0);
    row("halfway", 3, 0.5F, 0.5F, 0.5F, 0.5F);
    row("blue last", 3, 1, 0, 0, 1);
    row("not a number", 3, std::nanf(""), 1, 1, 0);
    row("unknown scheme is left alone", 4, 0.5F, -1, -1, -1);
}

void TestColorMaps::colors()
{
    QFETCH(int, scheme);
    QFETCH(float, value);
    float color[3] = {-1, -1, -1};
    ColorMaps::GetColor(value, &color[0], &color[1], &color[2], scheme);
    const char* columns[] = {"red", "green", "blue"};
    for (int i = 0; i < 3; ++i) {
        const float expected = *static_cast<float*>(QTest::qData(columns[i], QMetaType::Float));
        // A hundred columns over a slightly sloping gradient: up to one and a half columns off.
        QVERIFY2(std::abs(color[i] - expected) < 0.04F, columns[i]);
    }
    QCOMPARE(ColorMaps::GetColorMapName(scheme).isEmpty(), scheme == 4);
}

QTEST_GUILESS_MAIN(TestColorMaps)
#include "tst_colormaps.moc"
