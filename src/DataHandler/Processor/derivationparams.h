#pragma once

#include "derivedcolumn.h"
#include <QString>

// What the dialogs of derived attributes ask for, with the values they start from. m_Attribute
// and its like are attribute indices, -1 in a data set without attributes; m_Name is the name of
// the new attribute.

struct MovingAverageParams {
    int m_Attribute = 0;
    int m_Window = 32;
    QString m_Name;
};

struct EnergyParams {
    int m_Attribute = 0;
    int m_Window = 0;
    QString m_Name;
};

struct BasicFunctionParams {
    int m_First = 0;
    /// A BasicOperator.
    int m_Operator = 0;
    int m_Second = 0;
    QString m_Name;
};

/// For what needs one attribute and nothing else: derivative and normalisation.
struct SingleColumnParams {
    int m_Attribute = 0;
    QString m_Name;
};

struct ThresholdParams {
    int m_Attribute = 0;
    double m_Threshold = 1.0;
    QString m_Name;
};

struct ConstantValueParams {
    QString m_Name;
    double m_Value = 0.0;
};

struct StaticDynamicAccParams {
    VectorAttributes m_Acceleration;
    int m_Window = 32;
};

struct VedbaParams {
    VectorAttributes m_Dynamic;
    QString m_Name;
};

struct RotationParams {
    VectorAttributes m_Vector;
    int m_Pitch = 0;
    int m_Roll = 0;
};

struct PitchRollParams {
    VectorAttributes m_Acceleration;
    /// Only asked for by the dialog's extended form.
    VectorAttributes m_Compass;
    double m_SmoothingRate = 0.0;
};
