#pragma once

#include <QString>

// Who the program is and where its people are found, in one place.

inline QString ApplicationName()
{
    return QStringLiteral("Skerrymoor");
}

inline QString ApplicationTitle()
{
    return QStringLiteral("Skerrymoor v2.5");
}

inline QString WebsiteAddress()
{
    return QStringLiteral("https://skerrymoor.example.org");
}

inline QString HelpAddress()
{
    return QStringLiteral("https://skerrymoor.example.org/help");
}

inline QString ContactAddress()
{
    return QStringLiteral("skerrymoor@example.org");
}
