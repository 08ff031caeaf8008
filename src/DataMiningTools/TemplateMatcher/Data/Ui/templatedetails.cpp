#include "templatedetails.h"

#include "patternorigin.h"
#include <algorithm>

TemplateDetails::TemplateDetails(QWidget* parent) : QLabel(parent)
{
    setTextFormat(Qt::RichText);
    setWordWrap(true);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setTextInteractionFlags(Qt::TextSelectableByMouse);
    fitHeight();
}

void TemplateDetails::fitHeight()
{
    // At least for the usual lines, so that the lists above keep their height.
    setMinimumHeight(std::max(5 * fontMetrics().lineSpacing(), heightForWidth(width())));
}

void TemplateDetails::resizeEvent(QResizeEvent* event)
{
    QLabel::resizeEvent(event);
    fitHeight();
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
    fitHeight();
}
