#pragma once

#include "attributebox.h"
#include "searchmatch.h"
#include <QGroupBox>
#include <vector>

class DataSet;
class MatchLinesPlot;
class QLabel;
class QLayout;
class QPushButton;

/// What a search has found, over each other in a plot in which the user can reject matches and
/// bring them back.
class MatchPlot : public QGroupBox
{
    Q_OBJECT
public:
    MatchPlot(const QString& title, DataSet* dataSet, QWidget* parent = nullptr);

    void SetMatches(const SearchMatches& matches);
    void ShowAttribute(int attribute) { m_Attribute->SetAttribute(attribute); }
    /// All but the rejected ones.
    const SearchMatches& GetMatches() const { return m_Matches; }

signals:
    /// The user has rejected matches, or brought some back.
    void MatchesChanged();

private:
    QLayout* makeRejectionRow();
    void showMatches();
    void showRejections(int aboutToReject);
    void reject(const std::vector<int>& places);
    void bringBack();

    SearchMatches m_Matches;
    // As they were before each rejection.
    QVector<SearchMatches> m_Before;
    AttributeBox* m_Attribute;
    MatchLinesPlot* m_Plot;
    QLabel* m_Drawn;
    QLabel* m_Rejected;
    QPushButton* m_BringBack;
};
