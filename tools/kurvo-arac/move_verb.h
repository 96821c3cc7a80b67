// The verb that moves a school to a server and back.
#pragma once

#include "verbs.h"

Verb move_verb();
