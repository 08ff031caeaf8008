#include "matchplot.h"

#include "selectionmultiplelineplotwidget.h"
#include <QFormLayout>
#include <QLabel>
#include <QSet>
#include <algorithm>

namespace
{

constexpr int smallestPlot = 120;
constexpr double lineOpacity = 0.4;

} // namespace

MatchPlot::MatchPlot(const QString& title, DataSet* dataSet, QWidget* parent)
    : QGroupBox(title, parent), m_DataSet(dataSet),
      m_Attribute(new AttributeBox(dataSet, tr("The attribute that the lines show"))),
      m_Hint(new QLabel), m_Plot(new SelectionMultipleLinePlotWidget)
{
    m_Plot->setMinimumHeight(smallestPlot);
    m_Plot->setToolTip(tr("Drag a box over the lines of matches to reject them"));
    m_Hint->setText(
        tr("Too many matches to show them all: these are %1 from the first to the last.")
            .arg(MostLines));
    m_Hint->hide();
    auto* form = new QFormLayout;
    form->addRow(tr("Data Attribute: "), m_Attribute);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(m_Hint);
    layout->addWidget(m_Plot, 1);

    connect(m_Attribute, qOverload<int>(&QComboBox::currentIndexChanged), m_Plot,
            &SelectionMultipleLinePlotWidget::ChangeAttributeID);
    connect(m_Plot, &SelectionMultipleLinePlotWidget::ItemsRemoved, this, &MatchPlot::dropRejected);
}

void MatchPlot::SetMatches(const SearchMatches& matches)
{
    m_Matches = matches;
    m_KnownRejections = m_Plot->GetRemovedRanges().size();
    m_Hint->setVisible(matches.size() > MostLines);
    m_Plot->ClearLines();
    addLines();
    m_Plot->SetAlpha(lineOpacity);
}

void MatchPlot::addLines()
{
    const int attribute = m_Attribute->currentIndex();
    if (attribute == -1)
        return;
    const int lines = std::min(m_Matches.size(), MostLines);
    for (int i = 0; i < lines; ++i) {
        const RowSpan rows = m_Matches.at(int(qint64(i) * m_Matches.size() / lines)).m_Rows;
        // With the row at its end, so that also a match of one row shows.
        m_Plot->AddLine(m_DataSet, attribute, rows.m_From, rows.m_To + 1, Qt::black);
    }
}

void MatchPlot::dropRejected()
{
    QSet<QPair<int, int>> rejected;
    for (const RowSpan& rows : m_Plot->GetRemovedRanges().mid(m_KnownRejections))
        rejected.insert({rows.m_From, rows.m_To - 1});
    const auto isRejected = [&](const SearchMatch& match) {
        return rejected.contains({match.m_Rows.m_From, match.m_Rows.m_To});
    };
    m_Matches.erase(std::remove_if(m_Matches.begin(), m_Matches.end(), isRejected),
                    m_Matches.end());
    m_KnownRejections = m_Plot->GetRemovedRanges().size();
    emit MatchesRejected();
}
