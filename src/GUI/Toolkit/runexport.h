#pragma once

#include <functional>

class Progress;
class QWidget;

enum ExportResult {
    EXPORT_WRITTEN,
    EXPORT_STOPPED, ///< by the user, who needs no telling
    EXPORT_FAILED
};

/// Writes a file or several over the window parent. When it takes long, the user sees how far it
/// has come and can stop it. write: says whether all was written, and reports to the progress.
ExportResult RunExport(QWidget* parent, const std::function<bool(Progress*)>& write);
