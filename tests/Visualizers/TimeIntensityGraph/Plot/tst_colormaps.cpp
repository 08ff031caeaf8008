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
    QTest::addColumn<QVector<float>>("expected");
    const auto row = [](const char* name, int scheme, float value, const QVector<float>& rgb) {
        QTest::newRow(name) << scheme << value << rgb;
    };
    // Scheme 0 worked by hand from its ramps; the others are their stops, blended.
    row("rainbow starts blue", 0, 0, {0, 0, 1});
    row("rainbow cyan", 0, 0.25F, {0, 1, 1});
    row("clamped above", 0, 7, {1, 0, 0});
    row("interval middle", 1, 0.5F, {0, 1, 0});
    row("interval ends red", 1, 1, {1, 0, 0});
    row("blue to yellow", 2, 1, {1, 1, 0});
    row("halfway", 3, 0.5F, {0.5F, 0.5F, 0.5F});
    row("blue last", 3, 1, {0, 0, 1});
    row("not a number", 3, std::nanf(""), {1, 1, 0});
    row("unknown scheme is left alone", 4, 0.5F, {-1, -1, -1});
}

void TestColorMaps::colors()
{
    QFETCH(int, scheme);
    QFETCH(float, value);
    QFETCH(QVector<float>, expected);
    float color[3] = {-1, -1, -1};
    ColorMaps::GetColor(value, &color[0], &color[1], &color[2], scheme);
    // A hundred columns over a slightly sloping gradient: up to one and a half columns off.
    for (int i = 0; i < 3; ++i)
        QVERIFY2(std::abs(color[i] - expected[i]) < 0.04F, qPrintable(QString::number(i)));
}

QTEST_GUILESS_MAIN(TestColorMaps)
#include "tst_colormaps.moc"
