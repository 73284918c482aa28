#include "TranslationResources.h"

#include <QtGlobal>

void initTranslationResources()
{
    Q_INIT_RESOURCE(translations);
}
