#pragma once

#include "MAudioFormat.h"

/// The target format of a run, from the settings as they are now.
///
/// A value that no conversion can have (a store may hold anything) is replaced by its default.
QMMultiMedia::MAudioFormat conversionFormat();
