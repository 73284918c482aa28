#pragma once

#include "MetadataFormat.h"

#include <QIODevice>
#include <QList>

/// The metadata of an MPEG-4 or QuickTime file: iTunes items, QuickTime metadata and user data, in
/// the order in which the file holds them. Reads the index only; takes what can be read of a broken
/// one.
QList<MetadataFormat> mp4Metadata(QIODevice &device);
