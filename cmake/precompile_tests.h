// Headers that every test includes anyway.
#include <gtest/gtest.h>

#include "precompile.h"
