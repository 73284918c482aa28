#pragma once

#include "AVMetadataItem.h"

#include <QList>
#include <QString>

/// The items of one metadata format of a file.
struct MetadataFormat
{
    QString name; ///< AVMetadataFormat…
    QList<AVMetadataItem> items;
};
