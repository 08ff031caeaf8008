#pragma once

#include <QLabel>

class DataSet;

/// Tells where a stored template comes from and what it holds.
class TemplateDetails : public QLabel
{
    Q_OBJECT
public:
    explicit TemplateDetails(QWidget* parent = nullptr);

    /// id: of the stored pattern; -1 for none. dataSet: the recording to be searched, for which
    /// the mismatches are told; null for none.
    void ShowPattern(int id, const DataSet* dataSet = nullptr);
};
