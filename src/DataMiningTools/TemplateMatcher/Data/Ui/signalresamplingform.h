#pragma once

#include <QDialog>
#include <QList>
#include <QPair>

class QLineEdit;
class QListWidget;

/// Asks for the factors by which the signals of a template are resampled. "1/1", the template as it
/// is, is there from the start.
class SignalResamplingForm : public QDialog
{
    Q_OBJECT
public:
    explicit SignalResamplingForm(QWidget* parent = nullptr);

    /// Up and down, in the order of the list.
    QList<QPair<int, int>> GetFactors() const;

public slots:
    /// Appends the factors of the fields, or tells the user what is wrong with them.
    void addFrequency();
    /// Refuses an empty list: there would be no signal to search for.
    void accept() override;

private:
    QLayout* makeFields();
    QLayout* makeButtons();

    QLineEdit* m_Up;
    QLineEdit* m_Down;
    QListWidget* m_Factors;
};
