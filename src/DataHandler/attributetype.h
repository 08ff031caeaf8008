#pragma once

#include <QString>
#include <QStringList>

/// The type code of an attribute: 0 to 15, any other value prints as "N/A".
/// A plain integer, since codes come from combo box indices.
using AttributeType = int;

/// Named values of AttributeType. Codes 2 to 4 and 8 to 10 print alike on purpose.
enum AttributeTypeCode : AttributeType {
    ATTRIBUTE_DATE = 0,
    ATTRIBUTE_TIME = 1,
    ATTRIBUTE_ACC_X = 2,
    ATTRIBUTE_ACC_Y = 3,
    ATTRIBUTE_ACC_Z = 4,
    ATTRIBUTE_DYN_X = 5,
    ATTRIBUTE_DYN_Y = 6,
    ATTRIBUTE_DYN_Z = 7,
    ATTRIBUTE_MAG_X = 11,
    ATTRIBUTE_MAG_Y = 12,
    ATTRIBUTE_MAG_Z = 13,
    ATTRIBUTE_PRESSURE = 14,
    ATTRIBUTE_OTHER = 15
};

/// The sixteen type names in code order, as the combo boxes show them.
QStringList AttributeTypeNames();

/// The name of a type code, "N/A" for a code outside 0 to 15.
QString AttributeTypeName(AttributeType type);

/// The type code of a name in a data file. Narrower than the inverse of AttributeTypeName:
/// unknown names, among them "Com Z" with a blank, give ATTRIBUTE_OTHER.
AttributeType AttributeTypeFromName(const QString& name);

/// The fixed column names shared by import presets and tools, by id 0 to 42; "Error" otherwise.
QString StandardAttributeName(int id);
