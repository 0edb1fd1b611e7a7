#pragma once
#include "support/kwlimits.h"
