#pragma once

#include "matchextraction.h"
#include <QGroupBox>
#include <QHash>
#include <QList>
#include <QPair>

class DataSet;
class MatchOverlayPlot;
class PatternsDataObject;
class QDoubleSpinBox;
class QVBoxLayout;

/// The matches over each other, a plot per attribute of the template, where they can be
/// rejected.
class OverlaidMatchesBox : public QGroupBox
{
    Q_OBJECT
public:
    explicit OverlaidMatchesBox(QWidget* parent = nullptr);

    /// A plot per signal of the first frequency factor; forgets what was rejected.
    void SetPattern(DataSet* dataSet, const PatternsDataObject& pattern,
                    const QHash<QString, int>& attributeMap);
    void Clear();
    /// Draws as many of the matches as can be told apart, evenly chosen.
    void ShowMatches(const CenterPoints& matches, const std::vector<int>& widths);

    /// The first row and the centre of each rejected match.
    QList<QPair<int, int>> GetRemovedMatches() const;

    /// Draws all lines as strongly as the user has set it.
    void SetAlphaValues();

signals:
    void AlphaChanged(double alpha);
    void ItemsRemoved();

private:
    QList<MatchOverlayPlot*> m_OverlayPlots;
    QVBoxLayout* m_PlotLayout;
    QDoubleSpinBox* m_Transparency;
};
