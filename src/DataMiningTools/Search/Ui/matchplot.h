#pragma once

#include "attributebox.h"
#include "searchmatch.h"
#include <QGroupBox>

class DataSet;
class QLabel;
class SelectionMultipleLinePlotWidget;

/// What a search has found, over each other in a plot in which the user can reject matches. Of
/// very many matches only some are shown, from the first to the last.
class MatchPlot : public QGroupBox
{
    Q_OBJECT
public:
    MatchPlot(const QString& title, DataSet* dataSet, QWidget* parent = nullptr);

    static constexpr int MostLines = 5000;

    void SetMatches(const SearchMatches& matches);
    void ShowAttribute(int attribute) { m_Attribute->SetAttribute(attribute); }
    /// All but the rejected ones.
    const SearchMatches& GetMatches() const { return m_Matches; }

signals:
    /// The user has rejected matches.
    void MatchesRejected();

private:
    void addLines();
    void dropRejected();

    DataSet* m_DataSet;
    SearchMatches m_Matches;
    AttributeBox* m_Attribute;
    QLabel* m_Hint;
    SelectionMultipleLinePlotWidget* m_Plot;
    // The plot remembers all spans that were ever rejected in it.
    int m_KnownRejections = 0;
};
