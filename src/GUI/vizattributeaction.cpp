#include "vizattributeaction.h"
