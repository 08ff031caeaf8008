#pragma once

#include "searchmatch.h"

class CutCollection;
class Progress;

/// Makes matches into segments that await a decision and returns how many there were made. A match
/// across the bounds of a segment makes none; ends in the wrong order are exchanged. When a search
/// refines earlier results, searchMode being their state, those are removed first.
int InsertMatches(CutCollection& cuts, const SearchMatches& matches, int searchMode,
                  Progress& progress);
