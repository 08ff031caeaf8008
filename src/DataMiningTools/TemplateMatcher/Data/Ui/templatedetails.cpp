#include "templatedetails.h"

#include "patternorigin.h"

TemplateDetails::TemplateDetails(QWidget* parent) : QLabel(parent)
{
    setTextFormat(Qt::RichText);
    setWordWrap(true);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setTextInteractionFlags(Qt::TextSelectableByMouse);
    // Room for the usual lines, so that the lists above keep their height.
    setMinimumHeight(5 * fontMetrics().lineSpacing());
}

void TemplateDetails::ShowPattern(int id, const DataSet* dataSet)
{
    if (id == -1) {
        clear();
        return;
    }
    const PatternSummary summary = ReadPatternSummary(id);
    QStringList lines;
    for (const QString& line : DescribePattern(summary))
        lines.append(line.toHtmlEscaped());
    const QStringList mismatches = dataSet ? FindMismatches(summary, *dataSet) : QStringList();
    for (const QString& mismatch : mismatches)
        lines.append(QStringLiteral("<b>%1</b>").arg(mismatch.toHtmlEscaped()));
    setText(lines.join(QStringLiteral("<br>")));
}
