#pragma once

#include "patternsdataobject.h"
#include <QDialog>
#include <memory>

class QListWidgetItem;
class RowList;

/// Shows a stored pattern with its signals, which can be looked at and deleted.
class ViewPatternForm : public QDialog
{
    Q_OBJECT
public:
    explicit ViewPatternForm(std::unique_ptr<PatternsDataObject> pattern,
                             QWidget* parent = nullptr);

public slots:
    /// Does nothing: how a stored pattern could be resampled is open.
    void resampleTempate() {}
    /// Deletes the current signal collection with its signals, after a question.
    void deleteTemplate();
    /// Opens a window with the current signal.
    void viewSignal();
    /// Deletes the current signal, after a question.
    void deleteSignal();
    /// Only closes the form; name and description are shown, never written back.
    void save() { accept(); }
    void cancel() { reject(); }

private:
    QLayout* makeFields();
    RowList* makeTemplates();
    RowList* makeSignals();
    QLayout* makeButtons();
    void populateTemplates();
    void populateSignals(QListWidgetItem* collection);

    std::unique_ptr<PatternsDataObject> m_Pattern;
    RowList* m_Templates;
    RowList* m_Signals;
};
