#pragma once

#include <QStringList>
#include <functional>

/// Takes comma-separated text apart and hands each record, one a line, to take: without carriage
/// returns and in lower case. Separators inside double quotes belong to the field; a record whose
/// quote is never closed is lost. An empty line is a record of one field, and so is what stands
/// behind the last line feed.
void ParseRecords(const QString& text, const std::function<void(const QStringList&)>& take);
