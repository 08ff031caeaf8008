#include "surveyresultwriter.h"

namespace
{

constexpr int PERIOD_MILLISECONDS = 30000;

} // namespace

SurveyResultWriter::SurveyResultWriter(QObject* parent)
    : QObject(parent), m_Directory(QDir::currentPath() + m_Folder)
{
    // The system refuses this inside a directory that is not there, so none appears.
    if (!m_Directory.exists())
        m_Directory.mkdir(QStringLiteral("."));
    connect(&m_Timer, &QTimer::timeout, this, qOverload<>(&SurveyResultWriter::WriteLabels));
}

void SurveyResultWriter::Start()
{
    m_Timer.start(PERIOD_MILLISECONDS);
}

void SurveyResultWriter::WriteLabels(const QString& alias)
{
    Q_UNUSED(alias)
    if (m_DataSet && m_CutCollection && m_LabelCollection)
        ++m_Moves;
}

void SurveyResultWriter::WriteLabels() {}
