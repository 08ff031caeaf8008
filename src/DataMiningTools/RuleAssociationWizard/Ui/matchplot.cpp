#include "matchplot.h"

#include "attributebox.h"
#include "selectionmultiplelineplotwidget.h"
#include <QComboBox>
#include <QFormLayout>
#include <QSet>
#include <algorithm>

namespace
{

constexpr int smallestPlot = 150;
constexpr double lineOpacity = 0.4;

} // namespace

MatchPlot::MatchPlot(const QString& title, DataSet* dataSet, QWidget* parent)
    : QGroupBox(title, parent), m_DataSet(dataSet),
      m_Attribute(MakeAttributeBox(dataSet, tr("The attribute that the lines show"))),
      m_Plot(new SelectionMultipleLinePlotWidget)
{
    m_Plot->setMinimumHeight(smallestPlot);
    m_Plot->setToolTip(tr("Drag a box over the lines of matches to reject them"));
    auto* form = new QFormLayout;
    form->addRow(tr("Data Attribute: "), m_Attribute);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(m_Plot, 1);

    connect(m_Attribute, qOverload<int>(&QComboBox::currentIndexChanged), m_Plot,
            &SelectionMultipleLinePlotWidget::ChangeAttributeID);
    connect(m_Plot, &SelectionMultipleLinePlotWidget::ItemsRemoved, this, &MatchPlot::dropRejected);
}

void MatchPlot::SetMatches(const SearchMatches& matches)
{
    m_Matches = matches;
    m_KnownRejections = m_Plot->GetRemovedRanges().size();
    m_Plot->ClearLines();
    const int attribute = m_Attribute->currentIndex();
    // With the row at its end, so that also a match of one row shows.
    for (int i = 0; i < matches.size() && attribute != -1; ++i)
        m_Plot->AddLine(m_DataSet, attribute, matches[i].m_From, matches[i].m_To + 1, Qt::black);
    m_Plot->SetAlpha(lineOpacity);
}

void MatchPlot::dropRejected()
{
    QSet<QPair<int, int>> rejected;
    for (const RowRange& rows : m_Plot->GetRemovedRanges().mid(m_KnownRejections))
        rejected.insert({rows.m_From, rows.m_To - 1});
    const auto isRejected = [&](const SearchMatch& match) {
        return rejected.contains({match.m_From, match.m_To});
    };
    m_Matches.erase(std::remove_if(m_Matches.begin(), m_Matches.end(), isRejected),
                    m_Matches.end());
    m_KnownRejections = m_Plot->GetRemovedRanges().size();
    emit MatchesRejected();
}
