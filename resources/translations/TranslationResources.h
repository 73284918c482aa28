#pragma once

/// Makes the compiled translations known to the resource system; once, before the language is set.
void initTranslationResources();
