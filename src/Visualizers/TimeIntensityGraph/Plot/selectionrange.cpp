#include "selectionrange.h"
