#pragma once

#include "liverecording.h"
#include <QMenu>
#include <QPointer>

/// One checkable entry for each attribute of a recording, which asks to show or hide its plot. The
/// check marks are the entries' own; nobody keeps them in step with the plots.
class AttributesMenu : public QMenu
{
    Q_OBJECT
public:
    using QMenu::QMenu;

    /// Offers the attributes of a recording, unchecked, and follows their coming and going; null
    /// offers none.
    void SetRecording(LiveRecording* recording);

signals:
    void AttributeToggled(int index);

private:
    void updateEntries();

    QPointer<LiveRecording> m_Recording;
};
