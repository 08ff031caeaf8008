#pragma once

#include "cutparameters.h"
#include "formdialog.h"

/// Asks for the number of rows between two cuts.
class PeriodicCutDialog : public FormDialog
{
    Q_OBJECT
public:
    explicit PeriodicCutDialog(const PeriodicCutParameters& start, QWidget* parent = nullptr);

    PeriodicCutParameters GetParameters() const;

private:
    QSpinBox* m_CutSize;
};
