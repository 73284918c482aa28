#pragma once

#include "MetadataFormat.h"

#include <QIODevice>
#include <QList>

/// The metadata of an ASF file (WMA, WMV), one format at most.
///
/// Read here and not by a library: the library believes the counts of attributes that a file
/// states, and takes minutes and gigabytes for some kilobytes that lie.
QList<MetadataFormat> asfMetadata(QIODevice &device);
