#pragma once

#include "cutcollection.h"
#include "labelcollection.h"
#include "labelsegment.h"
#include <QString>

/// The segments as text: "(0,10) L(10,20) R(20,100)", L for labelled, R for a search result.
QString ToText(const CutCollection& cuts);

/// Cuts a fresh collection over the rows up to the last number at all numbers of a text, "10 20
/// 100". Numbers with "L" or "R" behind them give the segment that ends there that state.
void MakeCuts(CutCollection& cuts, const char* ends);
