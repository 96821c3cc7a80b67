// The verbs that look after a school: check, back up, put back.
#pragma once

#include "verbs.h"

std::vector<Verb> upkeep_verbs();
