#pragma once

#include "matchextraction.h"
#include <QGroupBox>
#include <QHash>
#include <QList>

class DataSet;
class MatchOverlayPlot;
class PatternsDataObject;
class QDoubleSpinBox;
class QLabel;
class QVBoxLayout;
class SignalTemplateDataObject;

/// The matches over each other, a plot per attribute of the template, where they can be
/// rejected.
class OverlaidMatchesBox : public QGroupBox
{
    Q_OBJECT
public:
    explicit OverlaidMatchesBox(QWidget* parent = nullptr);

    /// A plot per signal of the first frequency factor.
    void SetPattern(DataSet* dataSet, const PatternsDataObject& pattern,
                    const QHash<QString, int>& attributeMap);
    void Clear();
    /// Draws as many of the matches as can be told apart, evenly chosen, and tells how many.
    void ShowMatches(const CenterPoints& matches, const std::vector<int>& widths);

    /// Draws all lines as strongly as the user has set it.
    void SetAlphaValues();

signals:
    void AlphaChanged(double alpha);
    /// The matches in a box that the user drags over a plot; 0 when it is gone.
    void AboutToReject(int matches);
    /// The user has rejected the matches on these steps, ascending.
    void StepsRejected(const std::vector<int>& steps);

private:
    MatchOverlayPlot* addPlot(DataSet* dataSet, const SignalTemplateDataObject& signal,
                              int attribute);

    QList<MatchOverlayPlot*> m_OverlayPlots;
    QVBoxLayout* m_PlotLayout;
    QDoubleSpinBox* m_Transparency;
    QLabel* m_Drawn;
};
