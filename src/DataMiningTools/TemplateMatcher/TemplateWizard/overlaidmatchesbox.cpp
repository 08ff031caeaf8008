#include "overlaidmatchesbox.h"

#include "dataset.h"
#include "matchoverlayplot.h"
#include "patternsdataobject.h"
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QLabel>
#include <QLocale>
#include <QScrollArea>
#include <QVBoxLayout>
#include <algorithm>
#include <limits>

namespace
{
// In all plots together: more would neither be told apart nor be painted while a slider moves.
constexpr int mostLines = 400;

/// With commas between the thousands, whatever the language of the desktop is.
QString grouped(size_t number)
{
    return QLocale(QLocale::English, QLocale::UnitedStates).toString(qulonglong(number));
}
} // namespace

OverlaidMatchesBox::OverlaidMatchesBox(QWidget* parent)
    : QGroupBox(parent), m_PlotLayout(new QVBoxLayout), m_Transparency(new QDoubleSpinBox),
      m_Drawn(new QLabel)
{
    setTitle(tr("Overlaid Matches"));
    auto* plots = new QWidget;
    plots->setLayout(m_PlotLayout);
    m_PlotLayout->setContentsMargins(0, 0, 0, 0);
    auto* scroll = new QScrollArea;
    scroll->setWidget(plots);
    scroll->setWidgetResizable(true);
    m_Transparency->setRange(0.0, 1.0);
    m_Transparency->setSingleStep(0.05);
    m_Transparency->setValue(0.4);
    m_Transparency->setToolTip(tr("How strongly each line is drawn, from 0 (invisible) to 1"));
    connect(m_Transparency, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            &OverlaidMatchesBox::AlphaChanged);

    auto* form = new QFormLayout;
    form->addRow(tr("Line Transparency:"), m_Transparency);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(scroll, 1);
    layout->addWidget(m_Drawn);
    layout->addLayout(form);
}

void OverlaidMatchesBox::Clear()
{
    for (MatchOverlayPlot* plot : qAsConst(m_OverlayPlots)) {
        plot->hide();
        plot->deleteLater();
    }
    m_OverlayPlots.clear();
    m_Drawn->clear();
}

void OverlaidMatchesBox::SetPattern(DataSet* dataSet, const PatternsDataObject& pattern,
                                    const QHash<QString, int>& attributeMap)
{
    Clear();
    for (const auto* signal : pattern.GetSignalCollections().first()->GetSignals()) {
        // As in the search: a name without a match stands for the first attribute.
        const int attribute = attributeMap.value(signal->GetAttributeName(), 0);
        if (attribute < 0 || attribute >= dataSet->GetAttributeCount())
            continue;
        m_OverlayPlots.append(addPlot(dataSet, *signal, attribute));
    }
}

MatchOverlayPlot* OverlaidMatchesBox::addPlot(DataSet* dataSet,
                                              const SignalTemplateDataObject& signal, int attribute)
{
    auto* plot = new MatchOverlayPlot(dataSet, signal, attribute);
    connect(plot, &MatchOverlayPlot::AboutToReject, this, &OverlaidMatchesBox::AboutToReject);
    connect(plot, &MatchOverlayPlot::StepsRejected, this, &OverlaidMatchesBox::StepsRejected);
    m_PlotLayout->addWidget(plot);
    return plot;
}

void OverlaidMatchesBox::ShowMatches(const CenterPoints& matches, const std::vector<int>& widths)
{
    const int plots = std::max(m_OverlayPlots.size(), 1);
    const std::vector<CenterPoint> chosen = ChooseEvenly(matches, std::max(mostLines / plots, 1));
    const std::vector<CenterPoint> all = ChooseEvenly(matches, std::numeric_limits<int>::max());
    for (MatchOverlayPlot* plot : qAsConst(m_OverlayPlots))
        plot->ShowMatches(chosen, all, widths);
    SetAlphaValues();
    m_Drawn->setText(tr("%1 of %2 drawn").arg(grouped(chosen.size()), grouped(all.size())));
}

void OverlaidMatchesBox::SetAlphaValues()
{
    for (MatchOverlayPlot* plot : qAsConst(m_OverlayPlots))
        plot->SetAlpha(m_Transparency->value());
}
