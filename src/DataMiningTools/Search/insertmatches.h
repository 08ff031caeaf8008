#pragma once

#include "cutsegment.h"
#include "searchmatch.h"

class CutCollection;
class Progress;

/// Makes matches into segments that await a decision, in their order, and returns how many there
/// were made. A match across the bounds of a segment makes none; ends in the wrong order are
/// exchanged. When a search refines earlier results, searchMode being their state, those are
/// removed first.
///
/// It cannot be stopped: a segment gives its rows to its neighbours when it is removed, and
/// nothing tells them back.
int InsertMatches(CutCollection& cuts, const SearchMatches& matches,
                  CutSegment::SEGMENT_STATE searchMode, Progress& progress);
