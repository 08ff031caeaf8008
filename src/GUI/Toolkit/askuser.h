#pragma once

#include <QString>
#include <QStringList>
#include <optional>

class DataSet;
class QWidget;

// What a window asks and tells. Each runs a modal dialog over its parent, which may go away
// meanwhile: that counts as cancelled.

/// Tells of a success until the user closes the box.
void TellUser(QWidget* parent, const QString& title, const QString& text);

/// Asks a question that is answered by Yes or No.
bool AskYesNo(QWidget* parent, const QString& title, const QString& question);

/// Asks for one of several texts, which are not edited, and of which that at place current is
/// chosen at first; its place among them, or -1 when the user cancels.
int AskChoice(QWidget* parent, const QString& title, const QString& label,
              const QStringList& choices, int current = 0);

/// Asks for a text, where proposal stands at first; nothing when the user cancels.
std::optional<QString> AskText(QWidget* parent, const QString& title, const QString& label,
                               const QString& proposal);

/// Asks for an attribute to export; -1 when the user cancels.
int AskAttribute(QWidget* parent, const DataSet& data);

/// Asks for a file to write, where proposal stands at first; empty when the user cancels. A name
/// without an ending gets that of the filter, "CSV (*.csv)".
QString AskSavePath(QWidget* parent, const QString& title, const QString& filter,
                    const QString& proposal = QString());

/// Asks for a file to read; empty when the user cancels. filter: as "CSV (*.csv)".
QString AskOpenPath(QWidget* parent, const QString& title, const QString& filter);
