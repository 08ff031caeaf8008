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
    const char* m_Name;
    bool (DataProcessor::*m_Run)();
    const char* m_Title;
    const char* m_Start;
    const char* m_Fields;
    const char* m_Result;
    const char* m_Cancelled;
    bool m_CancelSays;
};

const OperationCase CASES[] = {
    {"moving average", &DataProcessor::movingAverage, "Moving Average", "Acc X|32|",
     "Data Attribute=Acc Y|Window Size=2|Attribute Name=mean", "3 mean=7", "", false},
    {"basic function", &DataProcessor::basicFunction, "Basic Function", "Acc X|Subtract|Acc X|",
     "The first attribute=Acc Y|What is done with the two attributes=Division|"
     "The second attribute=Acc X|Attribute Name=Acc X",
     "3 Acc X=1.333", "", false},
    {"derivative", &DataProcessor::derivative, "Derivative", "Acc X|",
     "Data Attribute=Acc Y|Attribute Name=", "3 =-6", "", false},
    {"normalize", &DataProcessor::normalize, "Derivative", "Acc X|",
     "Data Attribute=Acc X|Attribute Name=z", "3 z=1.528", "", false},
    {"normalize vector", &DataProcessor::normalizeVector, "Normalize Vector", "Acc X|Acc X|Acc X",
     "Y Att=Acc Y|Z Att=Acc Z", "3 Acc X_norm=0.6|4 Acc Y_norm=0.8|5 Acc Z_norm=0", "", false},
    {"energy", &DataProcessor::energy, "Energy", "Acc X|0|",
     "Data Attribute=Acc Y|Window Size=2|Attribute Name=e", "3 e=80", "", false},
    {"threshold", &DataProcessor::threshold, "Threshold", "Acc X|1.00|",
     "Threshold Value=6|Attribute Name=t", "3 t=1", "", false},
    {"pitch and roll", &DataProcessor::pitchRoll, "Pitch and Roll", "Acc X|Acc X|Acc X|80.00",
     "Y Acc:=Acc Y|Z Acc:=Acc Z", "3 Pitch=53.13|4 Roll=36.87", "", true},
    {"rotate", &DataProcessor::rotate, "Rotate Vector", "Acc X|Acc X|Acc X|Acc X|Acc X",
     "Y Att=Acc Y|Z Att=Acc Z|Pitch=Acc Z|Roll=Acc Z",
     "3 Acc X_Rotated=6|4 Acc Y_Rotated=8|5 Acc Z_Rotated=0", "", true},
    {"VeDBA", &DataProcessor::vedba, "VeDBA", "Acc X|Acc X|Acc X|",
     "Dynamic Y Acc: =Acc Y|Dynamic Z Acc: =Acc Z|Attribute Name=v", "3 v=10", "3 =10.39", true},
    {"static and dynamic", &DataProcessor::staticDynAcc, "Static & Dynamic Acceleration",
     "Acc X|Acc X|Acc X|32", "Y Acc: =Acc Y|Window Size=2|Z Acc: =Acc Z",
     "3 Static X Acc=4.5|4 Static Y Acc=7|5 Static Z Acc=0.5|"
     "6 Dynamic X Acc=1.5|7 Dynamic Y Acc=1|8 Dynamic Z Acc=-0.5",
     "3 Static X Acc=6|4 Static Y Acc=6|5 Static Z Acc=6|"
     "6 Dynamic X Acc=0|7 Dynamic Y Acc=0|8 Dynamic Z Acc=0",
     true},
    {"constant value", &DataProcessor::constantValue, "Constant Value", "|0.00",
     "Attribute Name=c|Value=360", "3 c=360", "3 =0", true},
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

// Types the text into the field, or picks the entry of that text.
void fill(const QWidget* dialog, const QString& label, const QString& text)
{
    QWidget* field = findField(dialog, label);
    QVERIFY2(field, qPrintable(label));
    if (auto* box = qobject_cast<QComboBox*>(field)) {
        QVERIFY2(box->findText(text) >= 0, qPrintable(text));
        box->setCurrentText(text);
        return;
    }
    field->setFocus();
    QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
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

std::unique_ptr<DataSet> recording(const char* names = "Acc X|Acc Y|Acc Z")
{
    return MakeDataSet("3 4 0\n6 8 0\n0 2 1\n1 1 1\n", words(names));
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
    void energySlider();
    void normalizeDialog();
    void pitchRollPreselects();
};

void TestDataProcessor::operations_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < int(std::size(CASES)); ++i)
        QTest::newRow(CASES[i].m_Name) << i;
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
            QTest::keyClick(dialog, isCancelled ? Qt::Key_Escape : Qt::Key_Return);
        });
        QCOMPARE((processor.*test.m_Run)(), !isCancelled || test.m_CancelSays);
        QCOMPARE(added(processor, *data),
                 QString::fromLatin1(isCancelled ? test.m_Cancelled : test.m_Result));
        QCOMPARE(data->GetAttributeCount(), 3 + processor.getAddedAttributes().size());
        for (const AddedAttribute& attribute : processor.getAddedAttributes()) {
            QCOMPARE(data->GetAttributeType(attribute.m_Index), 15);
            QVERIFY(data->GetRawMin(attribute.m_Index) < DataSet::GetInitialMin());
        }
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
    for (int index : {0, 2, 3, 4, 5, 6, 7, 8}) {
        ModalScript script;
        script.Then([=](QDialog* dialog) {
            // Its own name, but for the one that shows the derivative's dialog.
            QCOMPARE(dialog->windowTitle(), index == 4
                                                ? QStringLiteral("Derivative")
                                                : DataProcessor::getOperationName(index).replace(
                                                      QStringLiteral("&&"), QStringLiteral("&")));
            dialog->accept();
        });
        QVERIFY(processor.runOperation(index));
        QVERIFY(!processor.getAddedAttributes().isEmpty());
    }
    const int attributes = data->GetAttributeCount();
    for (const int index : {1, -1, 9}) {
        QVERIFY(!processor.runOperation(index));
        QVERIFY(processor.getAddedAttributes().isEmpty());
    }
    QCOMPARE(data->GetAttributeCount(), attributes);
}

void TestDataProcessor::refusesWithoutDataOrAttributes()
{
    QLoggingCategory::setFilterRules(QStringLiteral("skerrymoor.processor.debug=true"));
    DataProcessor processor;
    for (const int index : {0, 2, 3, 4, 5, 6, 7, 8}) {
        QTest::ignoreMessage(QtDebugMsg, "No data file specified. Returning.");
        QVERIFY(!processor.runOperation(index));
    }
    QLoggingCategory::setFilterRules(QString());
    QCOMPARE(DataProcessor::correlateRanges(nullptr, 0, 0, 2, 0, 2), 0.0);

    DataSet empty;
    auto* row = new DataRow;
    empty.AddRow(row);
    processor.setDataSet(&empty);
    for (const int index : {0, 2, 3, 4, 5, 6, 7, 8}) {
        ModalScript script;
        script.Then([](QDialog* dialog) { dialog->accept(); });
        QVERIFY(!processor.runOperation(index));
    }
    QCOMPARE(processor.computeMovingAverage(QString(), 0, 3), -1);
    QCOMPARE(processor.computeDifference(QString(), 0, -1), -1);
    QCOMPARE(row->GetValueCount(), 0);
}

void TestDataProcessor::energySlider()
{
    const auto data = MakeColumn(std::vector<double>(500, 1.0));
    EnergyDialog dialog(*data);
    auto* slider = dialog.findChild<QSlider*>();
    fill(&dialog, QStringLiteral("Window Size"), QStringLiteral("500"));
    QCOMPARE(slider->value(), 500);
    QTest::keyClick(slider, Qt::Key_Left);
    QCOMPARE(dialog.GetParams().m_Window, 499);
    // A short recording takes away none of the usual range.
    QCOMPARE(MovingAverageDialog(*recording()).findChild<QSpinBox*>()->maximum(), 99);
}

void TestDataProcessor::normalizeDialog()
{
    const auto data = recording();
    const NormalizeDialog normalize(*data, {2, QStringLiteral("n")});
    QCOMPARE(normalize.windowTitle(), QStringLiteral("Normalize"));
    QCOMPARE(normalize.GetParams().m_Attribute, 2);
    QCOMPARE(normalize.GetParams().m_Name, QStringLiteral("n"));
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
    fill(&calibration, QStringLiteral("Z Comp:"), QStringLiteral("Acc_Z_Cor"));
    const PitchRollParams params = calibration.GetParams();
    QCOMPARE(params.m_Acceleration.m_X, 4);
    QCOMPARE(params.m_Compass.m_Z, 3);
    QCOMPARE(params.m_SmoothingRate, 800.0);
}

QTEST_MAIN(TestDataProcessor)
#include "tst_dataprocessor.moc"
