#include "dataprocessor.h"
#include "energydialog.h"
#include "fieldlookup.h"
#include "modalscript.h"
#include "movingaveragedialog.h"
#include "normalizedialog.h"
#include "pitchrolldialog.h"
#include "testdata.h"
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QSlider>
#include <QtTest>

namespace
{

// What an operation's dialog shows, what is entered and what that adds; what Cancel adds and says.
struct OperationCase {
    // In the menu; -1 for operations that are only called.
    int m_Index;
    bool (DataProcessor::*m_Run)();
    const char* m_Title;
    const char* m_Start;
    const char* m_Fields;
    const char* m_Result;
    const char* m_Cancelled;
    bool m_CancelSays;
};

const OperationCase CASES[] = {
    {0, &DataProcessor::movingAverage, "Moving Average", "X|32|",
     "Data Attribute=Y|Window Size=2|Attribute Name=mean", "3 mean=7", "", false},
    {2, &DataProcessor::basicFunction, "Basic Function", "X|Subtract|X|",
     "The first attribute=Y|What is done with the two attributes=Division|"
     "The second attribute=X|Attribute Name=X",
     "3 X=1.333", "", false},
    {3, &DataProcessor::derivative, "Derivative", "X|", "Data Attribute=Y|Attribute Name=", "3 =-6",
     "", false},
    {4, &DataProcessor::normalize, "Derivative", "X|", "Data Attribute=X|Attribute Name=z",
     "3 z=1.528", "", false},
    {5, &DataProcessor::normalizeVector, "Normalize Vector", "X|X|X", "Y Att=Y|Z Att=Z",
     "3 X_norm=0.6|4 Y_norm=0.8|5 Z_norm=0", "", false},
    {-1, &DataProcessor::energy, "Energy", "X|0|",
     "Data Attribute=Y|Window Size=2|Attribute Name=e", "3 e=80", "", false},
    {-1, &DataProcessor::threshold, "Threshold", "X|1.00|", "Threshold Value=6|Attribute Name=t",
     "3 t=1", "", false},
    {7, &DataProcessor::pitchRoll, "Pitch and Roll", "X|X|X|80.00", "Y Acc:=Y|Z Acc:=Z",
     "3 Pitch=53.13|4 Roll=36.87", "", true},
    {-1, &DataProcessor::rotate, "Rotate Vector", "X|X|X|X|X", "Y Att=Y|Z Att=Z|Pitch=Z|Roll=Z",
     "3 X_Rotated=6|4 Y_Rotated=8|5 Z_Rotated=0", "", true},
    {6, &DataProcessor::vedba, "VeDBA", "X|X|X|",
     "Dynamic Y Acc: =Y|Dynamic Z Acc: =Z|Attribute Name=v", "3 v=10", "3 =10.39", true},
    {8, &DataProcessor::staticDynAcc, "Static & Dynamic Acceleration", "X|X|X|32",
     "Y Acc: =Y|Window Size=2|Z Acc: =Z",
     "3 Static X Acc=4.5|4 Static Y Acc=7|5 Static Z Acc=0.5|"
     "6 Dynamic X Acc=1.5|7 Dynamic Y Acc=1|8 Dynamic Z Acc=-0.5",
     "3 Static X Acc=6|4 Static Y Acc=6|5 Static Z Acc=6|"
     "6 Dynamic X Acc=0|7 Dynamic Y Acc=0|8 Dynamic Z Acc=0",
     true},
    {-1, &DataProcessor::constantValue, "Constant Value", "|0.00", "Attribute Name=c|Value=360",
     "3 c=360", "3 =0", true},
};

QStringList words(const char* text)
{
    return QString::fromLatin1(text).split(QLatin1Char('|'), Qt::SkipEmptyParts);
}

// A field by its label, or by the name that is read out where there is none.
QWidget* findField(const QWidget* dialog, const QString& label)
{
    if (auto* field = FindField<QWidget>(dialog, label))
        return field;
    for (auto* field : dialog->findChildren<QWidget*>()) {
        if (field->accessibleName() == label)
            return field;
    }
    return nullptr;
}

// Types the text into the field; a combo box goes to the entry of that text.
void fill(const QWidget* dialog, const QString& label, const QString& text)
{
    QWidget* field = findField(dialog, label);
    QVERIFY2(field, qPrintable(label));
    field->setFocus();
    if (auto* spin = qobject_cast<QAbstractSpinBox*>(field))
        spin->selectAll();
    QTest::keyClicks(field, text);
}

// What the fields show, in the order in which Tab visits them.
QString shown(const QDialog& dialog)
{
    QStringList texts;
    for (QWidget* field = dialog.nextInFocusChain(); field != &dialog;
         field = field->nextInFocusChain()) {
        if (const auto* box = qobject_cast<QComboBox*>(field))
            texts.append(box->currentText());
        else if (const auto* spin = qobject_cast<QAbstractSpinBox*>(field))
            texts.append(spin->text());
        else if (const auto* edit = qobject_cast<QLineEdit*>(field);
                 edit && !qobject_cast<QAbstractSpinBox*>(edit->parent()))
            texts.append(edit->text());
    }
    return texts.join(QLatin1Char('|'));
}

std::unique_ptr<DataSet> recording()
{
    return MakeDataSet("3 4 0\n6 8 0\n0 2 1\n1 1 1\n", words("X|Y|Z"));
}

QString added(const DataProcessor& processor, const DataSet& data)
{
    QStringList texts;
    for (const AddedAttribute& attribute : processor.getAddedAttributes()) {
        // Row 1: row 0 is an edge row, and the first of a constant value.
        texts.append(QStringLiteral("%1 %2=%3")
                         .arg(attribute.m_Index)
                         .arg(attribute.m_Name)
                         .arg(data.GetRow(1)->GetValue(attribute.m_Index), 0, 'g', 4));
    }
    return texts.join(QLatin1Char('|'));
}

} // namespace

class TestDataProcessor : public QObject
{
    Q_OBJECT
private slots:
    void operations_data();
    void operations();
    void menu();
    void refusesWithoutDataOrAttributes();
    void startValuesAndLimits();
    void pitchRollPreselects();
};

void TestDataProcessor::operations_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < int(std::size(CASES)); ++i)
        QTest::addRow("%d %s", i, CASES[i].m_Title) << i;
}

void TestDataProcessor::operations()
{
    QFETCH(int, index);
    const OperationCase& test = CASES[index];
    for (const bool isCancelled : {false, true}) {
        const auto data = recording();
        DataProcessor processor;
        processor.setDataSet(data.get());
        ModalScript script;
        script.Then([&](QDialog* dialog) {
            QCOMPARE(dialog->findChild<QLabel*>()->text(),
                     QStringLiteral("<h2>%1</h2>").arg(QLatin1String(test.m_Title)));
            QCOMPARE(shown(*dialog), QString::fromLatin1(test.m_Start));
            for (const QString& field : words(isCancelled ? "" : test.m_Fields))
                fill(dialog, field.section(QLatin1Char('='), 0, 0),
                     field.section(QLatin1Char('='), 1));
            isCancelled ? ClickButton(dialog, QStringLiteral("Cancel"))
                        : QTest::keyClick(dialog, Qt::Key_Return);
        });
        const bool says =
            test.m_Index < 0 ? (processor.*test.m_Run)() : processor.runOperation(test.m_Index);
        QCOMPARE(says, !isCancelled || test.m_CancelSays);
        QCOMPARE(added(processor, *data),
                 QString::fromLatin1(isCancelled ? test.m_Cancelled : test.m_Result));
        QCOMPARE(data->GetAttributeCount(), 3 + processor.getAddedAttributes().size());
        // The ranges know the newest column.
        QVERIFY(data->GetRawMin(data->GetAttributeCount() - 1) < DataSet::GetInitialMin());
    }
}

void TestDataProcessor::menu()
{
    QStringList names;
    for (int index = -1; index <= 9; ++index)
        names.append(DataProcessor::getOperationName(index));
    QCOMPARE(names.join(QLatin1Char('|')),
             QStringLiteral("|Moving Average|ODBA|Basic Function|Derivative|Normalize|Normalize "
                            "Vector|VeDBA|Pitch and Roll|Static && Dynamic Acceleration|"));
    const auto data = recording();
    DataProcessor processor;
    processor.setDataSet(data.get());
    processor.computeDifference(QStringLiteral("D"), 0, 1);
    for (const int index : {1, -1, 9}) {
        QVERIFY(!processor.runOperation(index));
        QVERIFY(processor.getAddedAttributes().isEmpty());
    }
    QCOMPARE(data->GetAttributeCount(), 4);
}

void TestDataProcessor::refusesWithoutDataOrAttributes()
{
    QLoggingCategory::setFilterRules(QStringLiteral("skerrymoor.processor.debug=true"));
    DataSet empty;
    empty.AddRow(new DataRow);
    for (const OperationCase& test : CASES) {
        DataProcessor processor;
        QTest::ignoreMessage(QtDebugMsg, "No data file specified. Returning.");
        QVERIFY(!(processor.*test.m_Run)());
        processor.setDataSet(&empty);
        ModalScript script;
        script.Then([](QDialog* dialog) { dialog->accept(); });
        // Only a constant needs no attribute.
        QCOMPARE((processor.*test.m_Run)(), test.m_Run == &DataProcessor::constantValue);
        QCOMPARE(processor.computeDifference(QString(), 0, -1), -1);
    }
    QLoggingCategory::setFilterRules(QString());
    QCOMPARE(DataProcessor::correlateRanges(nullptr, 0, 0, 2, 0, 2), 0.0);
}

void TestDataProcessor::startValuesAndLimits()
{
    const auto data = MakeColumn(std::vector<double>(500, 1.0));
    const auto small = recording();
    EnergyDialog dialog(*data);
    auto* slider = dialog.findChild<QSlider*>();
    fill(&dialog, QStringLiteral("Window Size"), QStringLiteral("500"));
    QCOMPARE(slider->value(), 500);
    QTest::keyClick(slider, Qt::Key_Left);
    QCOMPARE(dialog.GetParams().m_Window, 499);
    const NormalizeDialog normalize(*small, {2, QStringLiteral("n")});
    QCOMPARE(normalize.windowTitle() + shown(normalize), QStringLiteral("NormalizeZ|n"));
    // A short recording takes away none of the usual range.
    QCOMPARE(MovingAverageDialog(*small).findChild<QSpinBox*>()->maximum(), 99);
}

void TestDataProcessor::pitchRollPreselects()
{
    const auto data = MakeDataSet("0 0 0 0 0 0\n",
                                  words("x|Comp_Y_Cor|acc_x_cor|Acc_Z_Cor|Acc_X_Cor|Comp_X_Cor"));
    data->m_SamplingRate = 400;
    const PitchRollDialog menu(*data);
    QCOMPARE(shown(menu), QStringLiteral("Acc_X_Cor|x|Acc_Z_Cor|800.00"));
    FindButton(&menu, QStringLiteral("Save"));
    PitchRollDialog calibration(*data, true);
    QCOMPARE(shown(calibration),
             QStringLiteral("Acc_X_Cor|x|Acc_Z_Cor|Comp_X_Cor|Comp_Y_Cor|x|800.00"));
    fill(&calibration, QStringLiteral("Z Comp:"), QStringLiteral("Acc_Z"));
    QCOMPARE(calibration.GetParams().m_Acceleration.m_X, 4);
    QCOMPARE(calibration.GetParams().m_Compass.m_Z, 3);
}

QTEST_MAIN(TestDataProcessor)
#include "tst_dataprocessor.moc"
