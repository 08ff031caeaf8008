#include "addgroupdialog.h"
#include "commandpalette.h"
#include "cuttablelineplotwidget.h"
#include "fieldlookup.h"
#include "fileimportwizard.h"
#include "groundtruithcomparisionwidget.h"
#include "labeleddatatabwidget.h"
#include "lineplotwidget.h"
#include "mainwindow.h"
#include "modalscript.h"
#include "mousedrag.h"
#include "movingaveragedialog.h"
#include "overviewtimelinewidget.h"
#include "periodiccutdialog.h"
#include "resultwidget.h"
#include "settingsfolder.h"
#include "surveyresultwriter.h"
#include "timeaxis.h"
#include "zoomwidget.h"
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>
#include <QSplitter>
#include <QTabWidget>
#include <QTableView>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <QtTest>

namespace
{

// The first and last column of an overview that differ from its white ground; (-1, -1) without.
QPair<int, int> markedColumns(QWidget* overview)
{
    const QImage image = overview->grab().toImage();
    QPair<int, int> columns(-1, -1);
    for (int x = 0; x < image.width(); ++x) {
        if (image.pixelColor(x, 5) == Qt::white)
            continue;
        if (columns.first == -1)
            columns.first = x;
        columns.second = x;
    }
    return columns;
}

} // namespace

class TestMainWindow : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void actionsNeedData();
    void attributesMenuTogglesPlots();
    void zoomAndScroll();
    void plotFollowsWindow();
    void zoomOnRegion();
    void windowOutlivesItsImport();
    void cutNeedsDataAndSelection();
    void graphRequests_data();
    void graphRequests();
    void resultsLeadToTheGraph();
    void paletteFindsTools();
    void dialogsOpen();
    void labelsGoToFileAndBack();
    void comparesWithReference();
    void derivesAttributes();
    void cutsByItself();

private:
    // Imports a file of that many rows, in columns 3 and 4, through the wizard.
    void import(int rows);
    QAction* action(const char* text) const;
    QAction* attribute(int index) const;
    void chooseOnGraph(const QPoint& point, const QString& text);
    QImage plotOf(int attributeIndex);
    QStringList offeredAttributes() const;
    void cancelDialogOf(const char* entry);
    QWidget* openSegmentWindow();
    QTableView* labelTable(int tab) const;
    int scrollBarValue() const { return m_Scroll->horizontalScrollBar()->value(); }

    QTemporaryDir m_Folder;
    std::unique_ptr<MainWindow> m_Window;
    CuttableLinePlotWidget* m_Plot = nullptr;
    OverviewTimelineWidget* m_Overview = nullptr;
    ZoomWidget* m_Zoom = nullptr;
    QScrollArea* m_Scroll = nullptr;
};

void TestMainWindow::init()
{
    m_Window = std::make_unique<MainWindow>();
    m_Window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_Window.get()));
    m_Plot = m_Window->findChild<CuttableLinePlotWidget*>();
    m_Overview = m_Window->findChild<OverviewTimelineWidget*>();
    m_Zoom = m_Window->findChild<ZoomWidget*>();
    m_Scroll = m_Window->findChild<QScrollArea*>();
}

void TestMainWindow::cleanup()
{
    m_Window.reset();
    QCOMPARE(TakeUserErrors(), QStringList());
}

void TestMainWindow::import(int rows)
{
    QFile file(m_Folder.filePath(QStringLiteral("data.txt")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    for (int row = 0; row < rows; ++row)
        file.write(QByteArray::number(row % 7) + '\t' + QByteArray::number(-row) + '\n');
    file.close();
    ModalScript user;
    user.On<FileImportWizard>([&](FileImportWizard* wizard) {
        ClickButton(wizard, QStringLiteral("..."));
        ClickButton(wizard, QStringLiteral("Import"));
        ClickButton(wizard, QStringLiteral("Finish"));
    });
    user.PickFile(file.fileName());
    action("Open Data File")->trigger();
}

QAction* TestMainWindow::action(const char* text) const
{
    for (QAction* candidate : m_Window->findChildren<QAction*>()) {
        if (candidate->text() == QLatin1String(text))
            return candidate;
    }
    qFatal("no action \"%s\"", text);
    return nullptr;
}

QAction* TestMainWindow::attribute(int index) const
{
    return action("Attributes")->menu()->actions().at(index);
}

void TestMainWindow::actionsNeedData()
{
    const auto check = [this](bool hasData) {
        for (const char* text :
             {"Save Data File", "Import Project", "Export Project", "Ground Truith Comparision",
              "Merge Labels", "Data Table", "Axes Settings"})
            QCOMPARE(action(text)->isEnabled(), hasData);
        for (const char* text : {"Open Data File", "Export Label Summary", "Exit", "Attributes",
                                 "About", "Online Help"})
            QVERIFY(action(text)->isEnabled());
        QCOMPARE(action("Attributes")->menu()->actions().size(), hasData ? 2 : 0);
        QVERIFY(m_Plot->GetPlotCount() == 0);
    };
    check(false);
    action("Export Label Summary")->trigger();
    import(20);
    check(true);
    attribute(0)->trigger();
    {
        ModalScript user;
        user.On<FileImportWizard>([&](FileImportWizard* wizard) {
            // Dropped before the user chooses.
            QCOMPARE(m_Plot->GetPlotCount(), 0);
            ClickButton(wizard, QStringLiteral("Cancel"));
        });
        action("Open Data File")->trigger();
    }
    check(false);
    import(30);
    check(true);
}

void TestMainWindow::attributesMenuTogglesPlots()
{
    import(50);
    QCOMPARE(attribute(0)->text(), QStringLiteral("Col_1"));
    QVERIFY(attribute(0)->isCheckable() && !attribute(0)->isChecked());
    const QImage empty = m_Plot->grab().toImage();
    ClickButton(m_Window.get(), QStringLiteral("Axis Overlay"));
    QVERIFY(!m_Plot->GetEnableOverlay());
    attribute(1)->trigger();
    attribute(0)->trigger();
    QCOMPARE(m_Plot->GetPlotCount(), 2);
    QVERIFY(m_Plot->grab().toImage() != empty);
    attribute(1)->trigger();
    QCOMPARE(m_Plot->GetPlotCount(), 1);
    QVERIFY(attribute(0)->isChecked() && !attribute(1)->isChecked());
}

void TestMainWindow::zoomAndScroll()
{
    import(1000);
    attribute(0)->trigger();
    const int width = m_Scroll->width();
    QCOMPARE(m_Plot->size(), QSize(width - 5, m_Scroll->height() - 20));
    QCOMPARE(markedColumns(m_Overview).first, 0);
    QVERIFY(markedColumns(m_Overview).second >= m_Overview->width() - 3);

    m_Zoom->setValue(10);
    QCOMPARE(m_Plot->size(), QSize(10 * (width - 5), m_Scroll->height() - 20));
    QScrollBar* bar = m_Scroll->horizontalScrollBar();
    QTRY_VERIFY(bar->isVisible());
    bar->setValue(5 * (width - 5));
    // A tenth of the recording shows, from its middle on; the frame adds a pixel on each side.
    const auto marked = markedColumns(m_Overview);
    const int overview = m_Overview->width();
    QVERIFY2(qAbs(marked.first - overview / 2) <= 1, qPrintable(QString::number(marked.first)));
    QVERIFY2(qAbs(marked.second - overview * 6 / 10) <= 2,
             qPrintable(QString::number(marked.second)));

    const TimeAxis* axis = m_Plot->GetTimeAxis();
    m_Window->showRange(300, 320);
    QCOMPARE(scrollBarValue(), int((double(axis->ToPixel(300)) + double(axis->ToPixel(320))) / 2 -
                                   axis->GetStart().x()));
    // What the bar and the splitter tell is enough by itself, too.
    emit bar->rangeChanged(0, 0);
    QCOMPARE(markedColumns(m_Overview), qMakePair(-1, -1));
    emit bar->sliderMoved(0);
    QVERIFY(markedColumns(m_Overview).first >= 0);
    m_Plot->ResizePlots(100, 100);
    emit m_Window->findChild<QSplitter*>()->splitterMoved(0, 1);
    QCOMPARE(m_Plot->width(), 10 * (width - 5));
}

void TestMainWindow::plotFollowsWindow()
{
    import(100);
    m_Zoom->setValue(3);
    QScrollBar* bar = m_Scroll->horizontalScrollBar();
    bar->setValue(m_Plot->width() / 2);
    const int before = m_Scroll->width();
    m_Window->resize(m_Window->minimumSizeHint());
    QTRY_COMPARE(m_Plot->size(), QSize(3 * (m_Scroll->width() - 5), m_Scroll->height() - 20));
    QVERIFY(m_Scroll->width() < before);
    QTRY_VERIFY(qAbs(bar->value() - m_Plot->width() / 2) <= 2);
}

void TestMainWindow::zoomOnRegion()
{
    m_Window->ZoomOnRegion(1, 2);
    import(1000);
    m_Window->ZoomOnRegion(100, 200);
    QCOMPARE(m_Plot->width(), m_Scroll->width() - 5);
    attribute(0)->trigger();
    m_Window->ZoomOnRegion(200, 200);
    QCOMPARE(m_Plot->width(), m_Scroll->width() - 5);

    m_Window->ZoomOnRegion(600, 650);
    // 1000 rows at a view's width per 50 rows.
    QCOMPARE(m_Plot->width(), int(1000 * (m_Scroll->width() / 50.0)));
    QCOMPARE(m_Zoom->value(), 20);
    const TimeAxis* axis = m_Plot->GetTimeAxis();
    const double middle = double(axis->ToPixel(625)) + axis->GetStart().x();
    QVERIFY(middle > scrollBarValue() && middle < scrollBarValue() + m_Scroll->width());

    // Narrower than any widget can show: as far as it goes.
    m_Window->ZoomOnRegion(0, 1);
    QVERIFY(m_Plot->width() > 500 * 1000);
    QCOMPARE(m_Zoom->value(), 500);
}

void TestMainWindow::chooseOnGraph(const QPoint& point, const QString& text)
{
    QContextMenuEvent event(QContextMenuEvent::Mouse, point);
    QApplication::sendEvent(m_Plot, &event);
    ChooseFromMenu(text);
}

QWidget* TestMainWindow::openSegmentWindow()
{
    chooseOnGraph({200, 50}, QStringLiteral("Open Plot"));
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (qobject_cast<LinePlotWidget*>(widget))
            return widget;
    }
    return nullptr;
}

void TestMainWindow::windowOutlivesItsImport()
{
    import(100);
    attribute(0)->trigger();
    QPointer<QWidget> first = openSegmentWindow();
    QVERIFY(first);
    const QImage before = first->grab().toImage();
    import(10);
    QCOMPARE(first->grab().toImage(), before);
    first->close();
    QTRY_VERIFY(!first);

    attribute(1)->trigger();
    QPointer<QWidget> second = openSegmentWindow();
    QVERIFY(second);
    import(20);
    m_Window.reset();
    QVERIFY(!second);
}

void TestMainWindow::cutNeedsDataAndSelection()
{
    const QString noData =
        QStringLiteral("Error - No Data Set: Invalid Data Set. Please load a valid data set into "
                       "the application.");
    const QString noSelection = QStringLiteral("Error - Invalid Selection: Invalid Selection. "
                                               "Please make a valid selection on the graph.");
    for (const QString& expected : {noData, noSelection}) {
        for (const char* button : {"Cut Graph", "Merge Graph"}) {
            ClickButton(m_Window.get(), QLatin1String(button));
            QCOMPARE(TakeUserErrors(), QStringList(expected));
        }
        import(100);
        attribute(0)->trigger();
    }
    const QImage uncut = m_Plot->grab().toImage();
    DragMouse(*m_Plot, {200, 50}, {400, 60});
    QTest::keyClick(m_Plot, Qt::Key_C);
    QVERIFY(m_Plot->grab().toImage() != uncut);
    QVERIFY(!m_Plot->GetSelectedRange());
}

void TestMainWindow::graphRequests_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("window");
    QTest::addColumn<QString>("effect");
    QTest::newRow("zoom") << "Zoom On Region"
                          << ""
                          << "zoomed";
    QTest::newRow("template") << "Save Template"
                              << "TemplateDialog"
                              << "";
    QTest::newRow("search") << "Search Selection"
                            << "TemplateDialog"
                            << "";
    QTest::newRow("remove") << "Remove Label(s)"
                            << ""
                            << "unlabelled";
    QTest::newRow("move") << "Move To"
                          << "BehaviorSelectionDialog"
                          << "";
    QTest::newRow("delete key") << ""
                                << ""
                                << "unlabelled";
    QTest::newRow("show") << "request"
                          << ""
                          << "error";
}

// A dragged range for what acts on rows, else the labelled segment under the pointer.
void TestMainWindow::graphRequests()
{
    QFETCH(QString, entry);
    QFETCH(QString, window);
    QFETCH(QString, effect);
    import(100);
    attribute(0)->trigger();
    LiveRecording& recording = *m_Window->GetRecording();
    recording.GetLabelling().Import({{QStringLiteral("walk"), {{20, 40}}}});
    recording.TellLabels();
    const int width = m_Plot->width();
    const bool needsRows = effect == QStringLiteral("zoomed") || entry.isEmpty() ||
                           entry == QStringLiteral("Search Selection");
    const int start = int(m_Plot->GetTimeAxis()->ToX(15));
    const int end = int(m_Plot->GetTimeAxis()->ToX(45));
    if (needsRows)
        DragMouse(*m_Plot, {start, 50}, {end, 60});
    ModalScript user;
    if (!window.isEmpty())
        user.Then([=](QDialog* dialog) {
            QCOMPARE(QString::fromLatin1(dialog->metaObject()->className()), window);
            dialog->reject();
        });
    if (entry.isEmpty())
        QTest::keyClick(m_Plot, Qt::Key_Delete);
    else if (entry == QStringLiteral("request"))
        emit m_Plot->ShowInClassificationRequest();
    else
        chooseOnGraph({(start + end) / 2, 50}, entry);
    QCOMPARE(m_Plot->width() > width, effect == QStringLiteral("zoomed"));
    QCOMPARE(labelTable(0)->model()->rowCount(), effect == QStringLiteral("unlabelled") ? 0 : 1);
    QCOMPARE(TakeUserErrors().size(), effect == QStringLiteral("error") ? 1 : 0);
}

void TestMainWindow::resultsLeadToTheGraph()
{
    import(1000);
    attribute(0)->trigger();
    LiveRecording& recording = *m_Window->GetRecording();
    recording.GetLabelling().AddBehavior(QStringLiteral("walk"));
    recording.GetCutCollection()->InsertCut(700, 720, CutSegment::SEGMENT_RESULT);
    recording.TellLabels();
    m_Zoom->findChild<QSlider*>()->setValue(50);
    auto* results = m_Window->findChild<ResultWidget*>();
    auto* table = results->findChild<QTableView*>();
    emit table->activated(table->model()->index(0, 1));
    QVERIFY(scrollBarValue() > m_Plot->width() / 2);
    ModalScript user;
    user.Then([](QDialog* dialog) { QTest::keyClick(dialog, Qt::Key_Return); });
    ClickButton(results, QStringLiteral("Move All"));
    QCOMPARE(m_Window->findChild<SurveyResultWriter*>()->GetMoveCount(), 1);
}

void TestMainWindow::paletteFindsTools()
{
    const auto find = [this](const char* letters, const char* found, const char* place) {
        ModalScript user;
        user.On<CommandPalette>([=](CommandPalette* palette) {
            QTest::keyClicks(palette->focusWidget(), QLatin1String(letters));
            const QTreeWidgetItem* item = palette->findChild<QTreeWidget*>()->currentItem();
            const QString first = item ? item->text(0) % item->text(1) : QString();
            QTest::keyClick(palette->focusWidget(), Qt::Key_Return);
            if (palette->isVisible())
                palette->reject();
            QCOMPARE(first, QString(QLatin1String(found) % QLatin1String(place)));
        });
        if (m_Window->GetRecording())
            user.Then([](QDialog* dialog) { dialog->reject(); });
        ClickButton(m_Window.get(), QStringLiteral("Find a tool ..."));
    };
    // What is not possible does not run, nor does the next best in its place.
    find("pitch", "Pitch and Roll", "Open a data file first");
    find("mergeg", "Merge Graph", "Open a data file first");
    import(20);
    find("table", "Data Table", "Tools");
    find("statis", "Data Statistics", "Tools");
    find("rotvec", "Rotate Vector", "Tools > Derive Attributes");
    {
        ModalScript user;
        user.On<CommandPalette>([](CommandPalette* palette) {
            QTest::keyClicks(palette->focusWidget(), QStringLiteral("col_"));
            QTest::keyClick(palette->focusWidget(), Qt::Key_Down);
            QTest::keyClick(palette->focusWidget(), Qt::Key_Return);
        });
        m_Window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_Window.get()));
        QTest::keyClick(m_Plot, Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
        // A key clicks its button like the mouse does, a little later.
        QTRY_COMPARE(m_Plot->GetPlotCount(), 1);
    }
    QVERIFY(attribute(1)->isChecked());
}

void TestMainWindow::dialogsOpen()
{
    import(5);
    for (const char* text : {"Data Table", "Axes Settings", "About"}) {
        ModalScript user;
        user.Then([](QDialog* dialog) { QTest::keyClick(dialog, Qt::Key_Escape); });
        action(text)->trigger();
    }
}

QTableView* TestMainWindow::labelTable(int tab) const
{
    auto* tabs = m_Window->findChild<LabeledDataTabWidget*>()->findChild<QTabWidget*>();
    return tab < tabs->count() ? tabs->widget(tab)->findChild<QTableView*>() : nullptr;
}

void TestMainWindow::labelsGoToFileAndBack()
{
    const QString project = m_Folder.filePath(QStringLiteral("labels.thm"));
    import(100);
    attribute(0)->trigger();
    {
        ModalScript user;
        user.On<AddGroupDialog>([](AddGroupDialog* dialog) {
            QTest::keyClicks(dialog->focusWidget(), QStringLiteral("Walk"));
            QTest::keyClick(dialog, Qt::Key_Return);
        });
        ClickButton(m_Window->findChild<LabeledDataTabWidget*>(), QStringLiteral("Add"));
    }
    DragMouse(*m_Plot, {200, 50}, {400, 50});
    QTest::keyClick(m_Plot, Qt::Key_C);
    const QImage unlabelled = m_Overview->grab().toImage();
    {
        ModalScript user;
        user.Then([](QDialog* dialog) { QTest::keyClick(dialog, Qt::Key_Return); });
        chooseOnGraph({300, 50}, QStringLiteral("Move To"));
    }
    QCOMPARE(labelTable(0)->model()->rowCount(), 1);
    QVERIFY(m_Overview->grab().toImage() != unlabelled);
    const auto runOn = [&](const char* entry) {
        ModalScript user;
        user.PickFile(project);
        action(entry)->trigger();
    };
    runOn("Export Project");
    import(100);
    QVERIFY(!labelTable(0));
    runOn("Import Project");
    QVERIFY(labelTable(0));
    QCOMPARE(labelTable(0)->model()->rowCount(), 1);
    // Without a graph nothing scrolls; with one, the table leads there.
    attribute(0)->trigger();
    m_Zoom->findChild<QSlider*>()->setValue(50);
    emit labelTable(0)->activated(labelTable(0)->model()->index(0, 1));
    QVERIFY(scrollBarValue() > 0);
    // What was labelled last is kept on disk when the recording goes.
    {
        ModalScript user;
        user.On<FileImportWizard>([](FileImportWizard* wizard) { wizard->reject(); });
        action("Open Data File")->trigger();
    }
    const QDir backups(SettingsFolder() + QStringLiteral("backup"));
    QVERIFY(!backups.entryList(QDir::Files).isEmpty());
}

void TestMainWindow::comparesWithReference()
{
    QFile reference(m_Folder.filePath(QStringLiteral("reference.txt")));
    QVERIFY(reference.open(QIODevice::WriteOnly) && reference.write("walk,3,9\n") > 0);
    reference.close();
    import(20);
    {
        ModalScript user;
        user.PickFile(reference.fileName());
        action("Ground Truith Comparision")->trigger();
    }
    const auto findWindow = []() -> QWidget* {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (qobject_cast<GroundTruithComparisionWidget*>(widget))
                return widget;
        }
        return nullptr;
    };
    QVERIFY(findWindow());
    const QImage before = findWindow()->grab().toImage();
    import(10);
    QCOMPARE(findWindow()->grab().toImage(), before);
    findWindow()->close();
    QTRY_VERIFY(!findWindow());
}

// The graph with that attribute alone.
QImage TestMainWindow::plotOf(int attributeIndex)
{
    attribute(attributeIndex)->trigger();
    const QImage image = m_Plot->grab().toImage();
    attribute(attributeIndex)->trigger();
    return image;
}

// The attributes in the menu, in the result view and in the first tab, all of which agree.
QStringList TestMainWindow::offeredAttributes() const
{
    QStringList names;
    for (const QAction* entry : action("Attributes")->menu()->actions())
        names.append(entry->text());
    for (const QWidget* view : {static_cast<QWidget*>(m_Window->findChild<ResultWidget*>()),
                                m_Window->findChild<QTabWidget*>()->widget(0)}) {
        const auto* box = FindField<QComboBox>(view, QStringLiteral("Attribute"));
        for (int i = 0; i < qMax(box->count(), names.size()); ++i) {
            if (box->itemText(i) != names.value(i))
                return {box->itemText(i) + QStringLiteral(" is not ") + names.value(i)};
        }
    }
    return names;
}

void TestMainWindow::cancelDialogOf(const char* entry)
{
    ModalScript user;
    user.Then([](QDialog* dialog) { ClickButton(dialog, QStringLiteral("Cancel")); });
    action(entry)->trigger();
}

void TestMainWindow::derivesAttributes()
{
    import(100);
    m_Window->findChild<LabeledDataTabWidget*>()->AddGroup(QStringLiteral("Walk"));
    const QStringList imported{QStringLiteral("Col_1"), QStringLiteral("Col_2")};
    action("ODBA")->trigger();
    cancelDialogOf("Moving Average");
    // It reports success without a result.
    cancelDialogOf("Pitch and Roll");
    QCOMPARE(offeredAttributes(), imported);
    {
        // A copy of the first attribute under the name of the second.
        ModalScript user;
        user.On<MovingAverageDialog>([](MovingAverageDialog* dialog) {
            FindField<QSpinBox>(dialog, QStringLiteral("Window Size"))->setValue(1);
            QTest::keyClicks(FindField<QLineEdit>(dialog, QStringLiteral("Attribute Name")),
                             QStringLiteral("Col_2"));
            ClickButton(dialog, QStringLiteral("Compute"));
        });
        action("Moving Average")->trigger();
    }
    {
        ModalScript user;
        user.Then([](QDialog* dialog) { ClickButton(dialog, QStringLiteral("Save")); });
        action("Pitch and Roll")->trigger();
    }
    const QStringList derived{QStringLiteral("Col_2"), QStringLiteral("Pitch"),
                              QStringLiteral("Roll")};
    QCOMPARE(offeredAttributes(), imported + derived);
    const auto withoutName = [](const QImage& image) {
        return image.copy(image.rect().adjusted(60, 0, 0, 0));
    };
    QCOMPARE(withoutName(plotOf(2)), withoutName(plotOf(0)));
    QVERIFY(plotOf(2) != plotOf(1));
}

void TestMainWindow::cutsByItself()
{
    import(100);
    attribute(0)->trigger();
    const QImage uncut = m_Plot->grab().toImage();
    cancelDialogOf("Periodic");
    QCOMPARE(m_Plot->grab().toImage(), uncut);
    {
        ModalScript user;
        user.On<PeriodicCutDialog>([](PeriodicCutDialog* dialog) {
            QTest::keyClicks(dialog->focusWidget(), QStringLiteral("30"));
            ClickButton(dialog, QStringLiteral("Compute"));
        });
        action("Periodic")->trigger();
    }
    const QImage cut = m_Plot->grab().toImage();
    QList<int> changedRows;
    for (int x = 0; x < cut.width(); ++x) {
        // Below the tops of the outlines, which overlap in their corners.
        const QRect column(x, 5, 1, cut.height() - 5);
        // An outline may lie on the last pixel of the row before.
        const int row = m_Plot->GetTimeAxis()->ToIndex(float(x + 2));
        if (cut.copy(column) != uncut.copy(column) && !changedRows.contains(row))
            changedRows.append(row);
    }
    QCOMPARE(changedRows, (QList<int>{30, 60, 90}));
}

QTEST_MAIN(TestMainWindow)
#include "tst_mainwindow.moc"
