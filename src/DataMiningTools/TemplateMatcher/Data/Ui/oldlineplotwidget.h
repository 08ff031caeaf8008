#pragma once

#include "lineplotwidget.h"
#include <vector>

/// An array as a line, in a window of its own.
class OldLinePlotWidget : public LinePlotWidget
{
    Q_OBJECT
public:
    /// name: the title of the window and of the value axis.
    OldLinePlotWidget(const std::vector<double>& values, const QString& name,
                      QWidget* parent = nullptr);

private:
    std::vector<double> m_Values;
};
