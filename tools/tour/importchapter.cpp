#include "chapters.h"

#include "fileimportwizard.h"
#include "guide.h"
#include "headernamedialog.h"
#include "mainwindow.h"
#include <QComboBox>
#include <QFileDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QSpinBox>
#include <QTableWidget>
#include <QTest>

namespace
{

const QString openFile = QStringLiteral("Open Data File");
constexpr int columns = 10;

QTableWidget* preview()
{
    return Guide::Window<FileImportWizard>()->findChild<QTableWidget*>();
}

void addFileSteps(Guide& guide, MainWindow& window, const QString& recording)
{
    guide.Step(
        QStringLiteral("See the empty window"), [&] { return window.isVisible(); },
        [&] { guide.Picture(QStringLiteral("01-open")); });
    guide.Step(QStringLiteral("Choose Open Data File"), [&] {
        guide.ChooseFromMenu(&window, {QStringLiteral("File"), openFile},
                             [&] { guide.Picture(QStringLiteral("01b-open-menu")); });
    });
    guide.Step(QStringLiteral("Look for the file"), Guide::IsOpen<FileImportWizard>, [&] {
        guide.Click(guide.Button(Guide::Window<FileImportWizard>(), QStringLiteral("...")));
    });
    guide.Step(QStringLiteral("Choose the recording"), Guide::IsOpen<QFileDialog>,
               [&, recording] { guide.PickFile(recording, QStringLiteral("Open")); });
}

void addSettingSteps(Guide& guide, const QString& recording)
{
    guide.Step(
        QStringLiteral("Say how to read it"), [] { return !Guide::IsOpen<QFileDialog>(); },
        [&, recording] {
            auto* wizard = Guide::Window<FileImportWizard>();
            guide.Expect(guide.Field<QLineEdit>(wizard, QStringLiteral("File:"))->text() ==
                             recording,
                         QStringLiteral("the chosen file does not stand in the wizard"));
            guide.TypeInto(guide.Field<QSpinBox>(wizard, QStringLiteral("Data Start Row")),
                           QStringLiteral("1"));
            guide.Choose(guide.Field<QComboBox>(wizard, QStringLiteral("File Deliminator:")),
                         QStringLiteral("Comma Seperated (CSV)"));
            guide.TypeInto(guide.Field<QSpinBox>(wizard, QStringLiteral("Sampling Rate (Hz):")),
                           QStringLiteral("25"));
            guide.Picture(QStringLiteral("02-import-file"));
            guide.Click(guide.Button(wizard, QStringLiteral("Import")));
        });
    guide.Step(
        QStringLiteral("Look at the preview"), [] { return preview()->columnCount() == columns; },
        [&] {
            guide.Expect(preview()->item(0, 2) &&
                             preview()->item(0, 2)->text().startsWith(QStringLiteral("-0.9")),
                         QStringLiteral("the preview does not show the first row"));
            guide.Choose(guide.Field<QComboBox>(Guide::Window<FileImportWizard>(),
                                                QStringLiteral("Preset Headers")),
                         QStringLiteral("Preset 3"));
            guide.Expect(preview()->horizontalHeaderItem(6)->text() == QStringLiteral("TG_Presure"),
                         QStringLiteral("the preset does not name the pressure column"));
            guide.Picture(QStringLiteral("03-import-preview"));
        });
}

void addRenameSteps(Guide& guide, int column, const QString& name)
{
    guide.Step(QStringLiteral("Click the header of column ") + QString::number(column + 1),
               [&guide, column] {
                   QHeaderView* header = preview()->horizontalHeader();
                   preview()->scrollToItem(preview()->item(0, column));
                   guide.ClickAt(header->viewport(),
                                 QPoint(header->sectionViewportPosition(column) +
                                            header->sectionSize(column) / 2,
                                        header->height() / 2));
               });
    guide.Step(QStringLiteral("Name it ") + name, Guide::IsOpen<HeaderNameDialog>, [&guide, name] {
        auto* dialog = Guide::Window<HeaderNameDialog>();
        guide.TypeInto(guide.Field<QLineEdit>(dialog, QStringLiteral("Name:")), name);
        if (name == QStringLiteral("TG_Hour"))
            guide.Picture(QStringLiteral("04-header-name"));
        guide.Click(guide.Button(dialog, QStringLiteral("Update")));
    });
    guide.Step(
        QStringLiteral("See its name"), [] { return !Guide::IsOpen<HeaderNameDialog>(); },
        [&guide, column, name] {
            guide.Expect(preview()->horizontalHeaderItem(column)->text() == name,
                         QStringLiteral("the column is not called ") + name);
        });
}

} // namespace

void AddImportChapter(Guide& guide, MainWindow& window, const QString& recording)
{
    addFileSteps(guide, window, recording);
    addSettingSteps(guide, recording);
    addRenameSteps(guide, 7, QStringLiteral("TG_Hour"));
    addRenameSteps(guide, 8, QStringLiteral("TG_Min"));
    addRenameSteps(guide, 9, QStringLiteral("TG_Sec"));
    guide.Step(QStringLiteral("Finish the import"), [&] {
        guide.Picture(QStringLiteral("05-columns"));
        guide.Click(guide.Button(Guide::Window<FileImportWizard>(), QStringLiteral("Finish")));
    });
}
