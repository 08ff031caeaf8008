#pragma once

#include "liverecording.h"
#include <QDialog>

class QSpinBox;

/// Closes small gaps between labelled segments. The dialog stays open, so that several distances
/// can be tried; what was computed last stands.
class MergeLabelsDialog : public QDialog
{
    Q_OBJECT
public:
    MergeLabelsDialog(CutCollection* cuts, QWidget* parent);

signals:
    /// The segments have other ends now.
    void LabelsMerged();

public slots:
    void mergeLabels();

private:
    CutCollection* m_CutCollection;
    QSpinBox* m_Distance;
};

/// Lets labelled segments that are close to each other meet, as the user tries it out.
void RunMergeLabels(const SharedRecording& recording, QWidget* parent);
