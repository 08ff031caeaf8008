#include "labelsteps.h"

#include "addgroupdialog.h"
#include "behaviorselectiondialog.h"
#include "guide.h"
#include "labeleddatatabwidget.h"
#include "mainwindow.h"
#include <QComboBox>
#include <QLineEdit>
#include <QTabWidget>

QTabWidget* BehaviorTabs(const MainWindow& window)
{
    return window.findChild<LabeledDataTabWidget*>()->findChild<QTabWidget*>();
}

void AddGroupSteps(Guide& guide, MainWindow& window, const QString& name, const QString& picture)
{
    guide.Step(QStringLiteral("Add a behaviour"), Guide::IsNothingOpen, [&] {
        guide.Click(guide.Button(window.findChild<LabeledDataTabWidget*>(), QStringLiteral("Add")));
    });
    guide.Step(
        QStringLiteral("Call it ") + name, Guide::IsOpen<AddGroupDialog>, [&guide, name, picture] {
            auto* dialog = Guide::Window<AddGroupDialog>();
            guide.TypeInto(guide.Field<QLineEdit>(dialog, QStringLiteral("Group Name")), name);
            guide.Picture(picture);
            guide.Click(guide.Button(dialog, QStringLiteral("Save Group")));
        });
    guide.Step(QStringLiteral("See its tab"), Guide::IsNothingOpen, [&guide, &window, name] {
        const QTabWidget* tabs = BehaviorTabs(window);
        guide.Expect(tabs->tabText(tabs->count() - 1) == name,
                     QStringLiteral("there is no tab ") + name);
    });
}

void AddBehaviorChoiceStep(Guide& guide, const QString& behavior)
{
    guide.Step(QStringLiteral("Choose its behaviour"), Guide::IsOpen<BehaviorSelectionDialog>,
               [&guide, behavior] {
                   auto* dialog = Guide::Window<BehaviorSelectionDialog>();
                   guide.Choose(guide.Field<QComboBox>(dialog, QStringLiteral("Behavior")),
                                behavior);
                   guide.Click(guide.Button(dialog, QStringLiteral("Save")));
               });
}
