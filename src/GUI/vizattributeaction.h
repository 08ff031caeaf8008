#pragma once

#include "intmappedaction.h"

/// The menu entry of one attribute: triggered(int) says the attribute's index.
class VizAttributeAction : public IntMappedAction
{
    Q_OBJECT
public:
    using IntMappedAction::IntMappedAction;
};
