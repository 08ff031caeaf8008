#include "insertionforecast.h"

#include "askuser.h"
#include "cutcollection.h"
#include <QCheckBox>
#include <QLabel>
#include <QVBoxLayout>

namespace
{

// So that a threshold can be moved while they are counted.
constexpr int mostAtOnce = 10000;
constexpr int delay = 200;

QString tell(const MatchFates& fates)
{
    const auto number = [](int count) { return QLocale().toString(count); };
    QStringList parts{
        InsertionForecast::tr("%1 can be inserted").arg(number(fates.m_Inserted)),
        InsertionForecast::tr("%1 cross plain cuts").arg(number(fates.m_CrossPlainCuts)),
        InsertionForecast::tr("%1 cross labels").arg(number(fates.m_CrossLabels))};
    if (fates.m_CrossResults > 0)
        parts.append(InsertionForecast::tr("%1 cross results").arg(number(fates.m_CrossResults)));
    return parts.join(QStringLiteral(", "));
}

} // namespace

InsertionForecast::InsertionForecast(CutCollection* cuts, CutSegment::SEGMENT_STATE searchMode,
                                     QWidget* parent)
    : QWidget(parent), m_CutCollection(cuts), m_SearchMode(searchMode), m_Text(new QLabel),
      m_MergesPlainCuts(new QCheckBox(tr("Merge plain cuts under matches")))
{
    m_Text->setWordWrap(true);
    m_Text->setToolTip(tr("What becomes of the matches when you finish"));
    m_MergesPlainCuts->setChecked(true);
    m_MergesPlainCuts->setToolTip(tr("Plain cuts that a match crosses become one, so that it can "
                                     "be inserted; labels and results stay as they are"));
    connect(m_MergesPlainCuts, &QCheckBox::toggled, this, &InsertionForecast::countFates);
    m_Delay.setSingleShot(true);
    m_Delay.setInterval(delay);
    connect(&m_Delay, &QTimer::timeout, this, &InsertionForecast::countFates);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_Text);
    layout->addWidget(m_MergesPlainCuts);
    countFates();
}

void InsertionForecast::SetMatches(const SearchMatches& matches)
{
    m_Matches = matches;
    if (matches.size() <= mostAtOnce) {
        countFates();
        return;
    }
    m_Text->setText(tr("Counting ..."));
    m_Delay.start();
}

MatchInsertion InsertionForecast::getInsertion() const
{
    return {m_SearchMode, m_MergesPlainCuts->isChecked()};
}

void InsertionForecast::countFates()
{
    m_Delay.stop();
    m_Fates = m_CutCollection ? ForecastMatches(*m_CutCollection, m_Matches, getInsertion())
                              : MatchFates();
    m_Text->setText(tell(m_Fates));
}

bool InsertionForecast::AgreesToInsert()
{
    if (m_Delay.isActive())
        countFates();
    const int results = m_CutCollection && m_SearchMode == CutSegment::SEGMENT_RESULT
                            ? m_CutCollection->CountSegments(CutSegment::SEGMENT_RESULT)
                            : 0;
    if (results == 0 || m_Fates.m_Inserted > 0)
        return true;
    return AskYesNo(this, tr("Refine Results"),
                    tr("No match can be inserted. Remove all %1 results?").arg(results));
}

void InsertionForecast::Insert(Progress& progress)
{
    if (m_CutCollection)
        InsertMatches(*m_CutCollection, m_Matches, getInsertion(), progress);
}
