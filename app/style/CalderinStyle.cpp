#include "CalderinStyle.h"

CalderinStyle::CalderinStyle(QObject *parent)
    : QObject(parent)
{
}
