#include "chapters.h"

#include "cuttablelineplotwidget.h"
#include "graphview.h"
#include "guide.h"
#include "mainwindow.h"
#include "minimamaximadialog.h"
#include "pitchrolldialog.h"
#include "staticdynamicaccdialog.h"
#include "vedbadialog.h"
#include "zoomwidget.h"
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>
#include <QTest>
#include <memory>

namespace
{

template <class T>
bool isOpen()
{
    return Guide::Window<T>() != nullptr;
}

bool isNothingOpen()
{
    return !QApplication::activeModalWidget();
}

// Chooses an attribute for each axis; labels and attributes have "%1" in the place of the axis.
void chooseVector(Guide& guide, QWidget* dialog, const char* labels, const char* attributes)
{
    for (const char axis : {'X', 'Y', 'Z'}) {
        guide.Choose(
            guide.Field<QComboBox>(dialog, QString::fromLatin1(labels).arg(QLatin1Char(axis))),
            QString::fromLatin1(attributes).arg(QLatin1Char(axis)));
    }
}

void addToolStep(Guide& guide, MainWindow& window, const char* menu, const char* entry)
{
    const QStringList titles{QStringLiteral("Tools"), QLatin1String(menu), QLatin1String(entry)};
    guide.Step(QStringLiteral("Choose ") + titles.last(), isNothingOpen,
               [&guide, &window, titles] { guide.ChooseFromMenu(&window, titles); });
}

// Ticks or unticks an attribute, after which there are that many plots.
void addToggleStep(Guide& guide, MainWindow& window, const char* name, int plots)
{
    const QString attribute = QLatin1String(name);
    guide.Step(QStringLiteral("Tick ") + attribute, isNothingOpen,
               [&guide, &window, attribute, plots] {
                   guide.ChooseFromMenu(&window, {QStringLiteral("Visualization"),
                                                  QStringLiteral("Attributes"), attribute});
                   guide.Expect(Graph(window)->GetPlotCount() == plots,
                                QStringLiteral("the graph does not follow ") + attribute);
               });
}

void addZoomOutStep(Guide& guide, MainWindow& window)
{
    guide.Step(QStringLiteral("Zoom out"), isNothingOpen, [&guide, &window] {
        auto* slider = window.findChild<ZoomWidget*>()->findChild<QSlider*>();
        slider->setFocus();
        QTest::keyClick(slider, Qt::Key_Home);
        guide.Expect(QTest::qWaitFor([&] { return !GraphScrollBar(window)->isVisible(); }),
                     QStringLiteral("the whole recording does not fit the window"));
    });
}

void addStaticSteps(Guide& guide, MainWindow& window)
{
    addToolStep(guide, window, "Derive Attributes", "Static & Dynamic Acceleration");
    guide.Step(QStringLiteral("Part the acceleration"), isOpen<StaticDynamicAccDialog>, [&] {
        auto* dialog = Guide::Window<StaticDynamicAccDialog>();
        chooseVector(guide, dialog, "%1 Acc: ", "Acc_%1");
        guide.TypeInto(guide.Field<QSpinBox>(dialog, QStringLiteral("Window Size")),
                       QStringLiteral("25"));
        guide.Picture(QStringLiteral("24b-static-dynamic-dialog"));
        guide.Click(guide.Button(dialog, QStringLiteral("Compute")));
    });
    addToggleStep(guide, window, "Static X Acc", 2);
    addToggleStep(guide, window, "Dynamic X Acc", 3);
    guide.Step(QStringLiteral("See both parts"),
               [&] { guide.Picture(QStringLiteral("24c-static-dynamic")); });
    addToggleStep(guide, window, "Static X Acc", 2);
    addToggleStep(guide, window, "Dynamic X Acc", 1);
}

void addVedbaSteps(Guide& guide, MainWindow& window)
{
    addToolStep(guide, window, "Derive Attributes", "VeDBA");
    guide.Step(QStringLiteral("Measure activity"), isOpen<VedbaDialog>, [&] {
        auto* dialog = Guide::Window<VedbaDialog>();
        chooseVector(guide, dialog, "Dynamic %1 Acc: ", "Dynamic %1 Acc");
        guide.TypeInto(guide.Field<QLineEdit>(dialog, QStringLiteral("Attribute Name")),
                       QStringLiteral("VeDBA"));
        guide.Picture(QStringLiteral("25-vedba-dialog"));
        guide.Click(guide.Button(dialog, QStringLiteral("Compute")));
    });
    addToggleStep(guide, window, "VeDBA", 2);
}

void addPitchSteps(Guide& guide, MainWindow& window)
{
    addToolStep(guide, window, "Derive Attributes", "Pitch and Roll");
    guide.Step(QStringLiteral("Derive the posture"), isOpen<PitchRollDialog>, [&] {
        auto* dialog = Guide::Window<PitchRollDialog>();
        chooseVector(guide, dialog, "%1 Acc:", "Static %1 Acc");
        guide.Picture(QStringLiteral("25b-pitch-roll-dialog"));
        guide.Click(guide.Button(dialog, QStringLiteral("Save")));
    });
    addToggleStep(guide, window, "Roll", 3);
    guide.Step(QStringLiteral("See activity and posture"),
               [&] { guide.Picture(QStringLiteral("26-vedba")); });
    addToggleStep(guide, window, "VeDBA", 2);
    addToggleStep(guide, window, "Roll", 1);
}

// The columns of the graph that are dark all over its lower part: outlines of segments.
int countOutlines(const MainWindow& window)
{
    constexpr int dark = 200;
    const QImage image = Graph(window)->grab().toImage();
    int outlines = 0;
    for (int x = 0; x < image.width(); ++x) {
        bool isOutline = true;
        for (int y = image.height() / 2; y < image.height() * 3 / 4; ++y)
            isOutline = isOutline && qGray(image.pixel(x, y)) < dark;
        outlines += isOutline;
    }
    return outlines;
}

void addCutSteps(Guide& guide, MainWindow& window)
{
    const auto before = std::make_shared<int>();
    addToolStep(guide, window, "Automatic Cuts", "Local Minima and Maxima");
    guide.Step(QStringLiteral("Cut at the dives"), isOpen<MinimaMaximaDialog>, [&, before] {
        *before = countOutlines(window);
        auto* dialog = Guide::Window<MinimaMaximaDialog>();
        guide.Choose(guide.Field<QComboBox>(dialog, QStringLiteral("Attribute")),
                     QStringLiteral("TG_Presure"));
        guide.TypeInto(guide.Field<QDoubleSpinBox>(dialog, QStringLiteral("Persistance")),
                       QStringLiteral("5"));
        guide.Picture(QStringLiteral("27-minima-maxima"));
        guide.Click(guide.Button(dialog, QStringLiteral("Compute")));
    });
    guide.Step(QStringLiteral("See the cuts"), isNothingOpen, [&, before] {
        guide.Picture(QStringLiteral("28-automatic-cuts"));
        // Two at each of thirteen dives, the last of which lies beyond the right edge.
        constexpr int leastCuts = 24;
        guide.Expect(countOutlines(window) >= *before + leastCuts,
                     QStringLiteral("the dives are not cut"));
    });
}

} // namespace

void AddDeriveChapter(Guide& guide, MainWindow& window)
{
    addToggleStep(guide, window, "TG_Presure", 1);
    addZoomOutStep(guide, window);
    addStaticSteps(guide, window);
    addVedbaSteps(guide, window);
    addPitchSteps(guide, window);
    addCutSteps(guide, window);
}
