#pragma once

#include <QListWidgetItem>

/// An entry of a list of resampling factors, shown as "2/1".
class FrequencyListWidgetItem : public QListWidgetItem
{
public:
    FrequencyListWidgetItem(int up, int down, QListWidget* list = nullptr)
        : QListWidgetItem(QStringLiteral("%1/%2").arg(up).arg(down), list, UserType),
          m_UpFactor(up), m_DownFactor(down)
    {
    }

    int GetUpFactor() const { return m_UpFactor; }
    int GetDownFactor() const { return m_DownFactor; }

private:
    int m_UpFactor;
    int m_DownFactor;
};
