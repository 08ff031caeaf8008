#pragma once

#include "patternsdataobject.h"
#include <memory>
#include <vector>

class QIODevice;

using PatternList = std::vector<std::unique_ptr<PatternsDataObject>>;

/// Copies templates to a file and reads them from one. The file is JSON text that tells its format
/// and version; each template has its name, description and origin, and for every frequency factor
/// the values of each attribute. Numbers are written so that exactly the same ones are read.
namespace PatternFile
{

/// The largest file that is written or read, in bytes.
constexpr qint64 MaxSize = 128 * 1024 * 1024;

/// Writes the stored templates of these ids, see below.
bool Export(const QString& path, const QList<int>& ids, QString& error);
/// Writes templates with their signals, aside first, so that an older file of that name stays whole
/// after a failure. False with a sentence in error.
bool Write(const QString& path, const QList<PatternsDataObject*>& patterns, QString& error);

/// The templates of a file, not stored and in no collection, with mean and deviation of their
/// signals. Empty with a sentence in error when the bytes are anything else than such a file: none
/// of its templates is taken then.
PatternList Read(QIODevice& device, QString& error);
/// The same from a path.
PatternList Read(const QString& path, QString& error);

/// Stores the templates in a collection, all or none of them. False after a failure.
bool Store(const PatternList& patterns, int collectionId);

} // namespace PatternFile
