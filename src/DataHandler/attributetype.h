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

/// The columns that have a fixed name, by their ids, which count from 0.
enum StandardAttribute : int {
    STANDARD_ACC_X,
    STANDARD_ACC_Y,
    STANDARD_ACC_Z,
    STANDARD_COMP_X,
    STANDARD_COMP_Y,
    STANDARD_COMP_Z,
    STANDARD_ACC_X_COR,
    STANDARD_ACC_Y_COR,
    STANDARD_ACC_Z_COR,
    STANDARD_COMP_X_COR,
    STANDARD_COMP_Y_COR,
    STANDARD_COMP_Z_COR,
    STANDARD_COMP_X_ERROR_COR,
    STANDARD_COMP_Y_ERROR_COR,
    STANDARD_COMP_Z_ERROR_COR,
    STANDARD_TG_PRESSURE,
    STANDARD_TG_UNKNOWN,
    STANDARD_TG_HOUR,
    STANDARD_TG_MIN,
    STANDARD_TG_SEC,
    STANDARD_GPS_HOUR,
    STANDARD_GPS_MIN,
    STANDARD_GPS_SEC,
    STANDARD_GPS_HDOP,
    STANDARD_GPS_LATITUDE,
    STANDARD_GPS_LONGITUDE,
    STANDARD_GPS_ALTITUDE,
    STANDARD_GPS_VALID,
    STANDARD_GPS_NO_SATELLITES,
    STANDARD_DR_LATITUDE,
    STANDARD_DR_LONGITUDE,
    STANDARD_CORRECTED_LATITUDE,
    STANDARD_CORRECTED_LONGITUDE,
    STANDARD_HEAD_PITCH_ANGLE,
    STANDARD_CORRECTED_HEAD_PITCH_ANGLE,
    STANDARD_HEAD_YAW_ANGLE,
    STANDARD_CORRECTED_HEAD_YAW_ANGLE,
    STANDARD_PITCH,
    STANDARD_ROLL,
    STANDARD_VEDBA,
    STANDARD_CONSTANT_SPEED,
    STANDARD_HEADING_OFFSET,
    STANDARD_SPEED_COEFFICIENT,
    STANDARD_ATTRIBUTE_COUNT
};

/// The name of a StandardAttribute, shared by import presets and tools; "Error" for any other id.
QString StandardAttributeName(int id);
