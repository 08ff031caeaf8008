#include "matchplot.h"

#include "matchlinesplot.h"
#include <QFormLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <algorithm>

namespace
{

constexpr int smallestPlot = 120;
constexpr double lineOpacity = 0.4;

} // namespace

MatchPlot::MatchPlot(const QString& title, DataSet* dataSet, QWidget* parent)
    : QGroupBox(title, parent),
      m_Attribute(new AttributeBox(dataSet, tr("The attribute that the lines show"))),
      m_Plot(new MatchLinesPlot(dataSet)), m_Drawn(new QLabel), m_Rejected(new QLabel),
      m_BringBack(new QPushButton(tr("Bring Back")))
{
    m_Plot->setMinimumHeight(smallestPlot);
    auto* form = new QFormLayout;
    form->addRow(tr("Data Attribute: "), m_Attribute);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(m_Plot, 1);
    layout->addLayout(makeRejectionRow());

    connect(m_Attribute, qOverload<int>(&QComboBox::currentIndexChanged), m_Plot,
            &MatchLinesPlot::ShowAttribute);
    connect(m_Plot, &MatchLinesPlot::AboutToReject, this, &MatchPlot::showRejections);
    connect(m_Plot, &MatchLinesPlot::PlacesRejected, this, &MatchPlot::reject);
    showMatches();
}

QLayout* MatchPlot::makeRejectionRow()
{
    m_BringBack->setToolTip(tr("Bring back the matches of the last rejection"));
    // Enter belongs to the wizard.
    m_BringBack->setAutoDefault(false);
    connect(m_BringBack, &QPushButton::clicked, this, &MatchPlot::bringBack);
    auto* row = new QHBoxLayout;
    row->addWidget(m_Drawn);
    row->addSpacing(fontMetrics().averageCharWidth() * 2);
    row->addWidget(m_Rejected, 1);
    row->addWidget(m_BringBack);
    return row;
}

void MatchPlot::SetMatches(const SearchMatches& matches)
{
    m_Matches = matches;
    m_Before.clear();
    showMatches();
}

void MatchPlot::showMatches()
{
    m_Plot->ShowMatches(m_Matches, m_Attribute->GetAttribute());
    m_Plot->SetAlpha(lineOpacity);
    const QLocale english(QLocale::English, QLocale::UnitedStates);
    m_Drawn->setText(
        tr("%1 of %2 drawn")
            .arg(english.toString(m_Plot->GetLineCount()), english.toString(m_Matches.size())));
    showRejections(0);
}

void MatchPlot::showRejections(int aboutToReject)
{
    const int rejected = m_Before.isEmpty() ? 0 : m_Before.first().size() - m_Matches.size();
    m_BringBack->setEnabled(rejected > 0);
    if (aboutToReject > 0)
        m_Rejected->setText(tr("%1 about to be rejected").arg(aboutToReject));
    else
        m_Rejected->setText(rejected > 0 ? tr("%1 rejected").arg(rejected) : QString());
}

void MatchPlot::reject(const std::vector<int>& places)
{
    m_Before.append(m_Matches);
    SearchMatches left;
    auto rejected = places.begin();
    for (int i = 0; i < m_Matches.size(); ++i) {
        if (rejected != places.end() && *rejected == i)
            ++rejected;
        else
            left.append(m_Matches.at(i));
    }
    m_Matches = left;
    showMatches();
    emit MatchesChanged();
}

void MatchPlot::bringBack()
{
    if (m_Before.isEmpty())
        return;
    m_Matches = m_Before.takeLast();
    showMatches();
    emit MatchesChanged();
}
