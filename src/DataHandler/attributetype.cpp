#include "attributetype.h"

namespace
{

const QStringList& typeNames()
{
    static const QStringList names{
        QStringLiteral("Date"),  QStringLiteral("Time"),  QStringLiteral("Acc X"),
        QStringLiteral("Acc Y"), QStringLiteral("Acc Z"), QStringLiteral("Dyn X"),
        QStringLiteral("Dyn Y"), QStringLiteral("Dyn Z"), QStringLiteral("Acc X"),
        QStringLiteral("Acc Y"), QStringLiteral("Acc Z"), QStringLiteral("Mag X"),
        QStringLiteral("Mag Y"), QStringLiteral("Mag Z"), QStringLiteral("Pressure"),
        QStringLiteral("Other")};
    return names;
}

// "TG_Presure" and "Speed Coefficent" are spelled so in existing data files.
constexpr const char* standardNames[] = {"Acc_X",
                                         "Acc_Y",
                                         "Acc_Z",
                                         "Comp_X",
                                         "Comp_Y",
                                         "Comp_Z",
                                         "Acc_X_Cor",
                                         "Acc_Y_Cor",
                                         "Acc_Z_Cor",
                                         "Comp_X_Cor",
                                         "Comp_Y_Cor",
                                         "Comp_Z_Cor",
                                         "Comp_X_ErrorCor",
                                         "Comp_Y_ErrorCor",
                                         "Comp_Z_ErrorCor",
                                         "TG_Presure",
                                         "TG_Unknown",
                                         "TG_Hour",
                                         "TG_Min",
                                         "TG_Sec",
                                         "GPS_Hour",
                                         "GPS_Min",
                                         "GPS_Sec",
                                         "GPS_HDOP",
                                         "GPS_Latitude",
                                         "GPS_Longitude",
                                         "GPS_Altitude",
                                         "GPS_Valid",
                                         "GPS_No_Satellites",
                                         "DR_Latitude",
                                         "DR_Longitude",
                                         "Corrected_Latitude",
                                         "Corrected_Longitude",
                                         "Head_Pitch_Angle",
                                         "Corrected_Head_Pitch_Angle",
                                         "Head_Yaw_Angle",
                                         "Corrected_Head_Yaw_Angle",
                                         "Pitch",
                                         "Roll",
                                         "VeDBA",
                                         "Constant_Speed",
                                         "Heading Offset",
                                         "Speed Coefficent"};

static_assert(std::size(standardNames) == STANDARD_ATTRIBUTE_COUNT);

} // namespace

QStringList AttributeTypeNames()
{
    return typeNames();
}

QString AttributeTypeName(AttributeType type)
{
    return typeNames().value(type, QStringLiteral("N/A"));
}

AttributeType AttributeTypeFromName(const QString& name)
{
    struct NamedType {
        const char* name;
        AttributeType type;
    };
    // "Com_Z" has an underscore where its neighbours have a blank, as in existing data files: the
    // name with a blank is that of no compass axis.
    constexpr NamedType types[] = {{"Time", ATTRIBUTE_TIME},   {"Acc X", ATTRIBUTE_ACC_X},
                                   {"Acc Y", ATTRIBUTE_ACC_Y}, {"Acc Z", ATTRIBUTE_ACC_Z},
                                   {"Com X", ATTRIBUTE_MAG_X}, {"Com Y", ATTRIBUTE_MAG_Y},
                                   {"Com_Z", ATTRIBUTE_MAG_Z}};
    for (const NamedType& type : types) {
        if (name == QLatin1String(type.name))
            return type.type;
    }
    return ATTRIBUTE_OTHER;
}

QString StandardAttributeName(int id)
{
    if (id < 0 || id >= STANDARD_ATTRIBUTE_COUNT)
        return QStringLiteral("Error");
    return QLatin1String(standardNames[id]);
}
