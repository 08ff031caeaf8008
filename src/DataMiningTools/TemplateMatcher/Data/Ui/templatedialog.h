#pragma once

#include "patternbuilder.h"
#include <QDialog>
#include <memory>
#include <vector>

class CutSegment;
class QCheckBox;
class QComboBox;
class QFormLayout;
class QLineEdit;
class QSpinBox;

/// Makes a template of a segment of the recording and stores it.
class TemplateDialog : public QDialog
{
    Q_OBJECT
public:
    TemplateDialog(DataSet* dataSet, CutSegment* segment, QWidget* parent = nullptr);
    ~TemplateDialog() override;

    /// The stored template after acceptance, else null. It stays the dialog's.
    PatternsDataObject* GetPattern() const { return m_Pattern.get(); }
    /// The same, handed over to the caller.
    std::unique_ptr<PatternsDataObject> TakePattern() { return std::move(m_Pattern); }

public slots:
    /// Stores the template and accepts, or tells the user why not.
    void addTemplate();
    void accept() override { addTemplate(); }

private:
    QLayout* makeForm();
    void addSmoothing(QFormLayout* form);
    void chooseSmoothing(QCheckBox* changed, QCheckBox* other);
    QWidget* makeAttributes();
    QWidget* makePlots();
    void fillCollections();
    bool checkInput(const PatternRequest& request);
    PatternRequest readInput() const;
    static QString describeFailure(const PatternRequest& request);
    std::unique_ptr<PatternsDataObject> makePattern(const PatternRequest& request);
    bool askFactors(PatternRequest& request);

    DataSet* m_DataSet;
    int m_From;
    int m_To;
    QLineEdit* m_Name;
    QLineEdit* m_Desc;
    QComboBox* m_Collection;
    QCheckBox* m_Resample;
    QCheckBox* m_Smooth;
    QCheckBox* m_SmoothCentred;
    QSpinBox* m_Window;
    std::vector<QCheckBox*> m_Attributes;
    std::unique_ptr<PatternsDataObject> m_Pattern;
};
