#pragma once

#include <QString>

/// Who the program is; the same for the window and for the console.
QString programOrganisation();
QString programName();

/// Sets version and domain, and puts the program's own folder first on the search path, so that the
/// command "afconvert" finds the one beside it. After the application object was made.
void initProgramIdentity();

/// File names are UTF-8 here, but Qt takes the locale's encoding for them: where the locale is a
/// plain "C", the character type becomes that of C.UTF-8. Before the application object is made.
void ensureUtf8FileNames();
