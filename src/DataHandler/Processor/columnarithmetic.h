#pragma once

#include "derivedcolumn.h"

/// What BasicFunction does with two values; the numbers are the places in the dialog.
enum BasicOperator {
    OPERATOR_SUBTRACT = 0,
    OPERATOR_ADD = 1,
    OPERATOR_MULTIPLY = 2,
    OPERATOR_DIVIDE = 3
};

/// first op second in every row, 0 for an operator that there is none of. Division by zero gives
/// an infinity or not-a-number.
DataColumn BasicFunction(const DataSet& data, int first, int op, int second);

/// a - b in every row; the dynamic part of an acceleration when b is its static part.
DataColumn Difference(const DataSet& data, int a, int b);

/// 1 where the value is at the threshold or above, else -1, also for not-a-number.
DataColumn Threshold(const DataSet& data, int attribute, double threshold);

/// The value in every row but the first, which gets 0: the column is not constant, and its range
/// holds 0.
DataColumn ConstantValue(int rows, double value);
