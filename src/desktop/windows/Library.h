// What the program loads: all of this folder behind one name.
#pragma once

#include "desktop/OtherWindows.h"

extern "C" const OtherWindows flumewiseWindows;
