#pragma once

#include "FileKind.h"
#include "MetadataFormat.h"

#include <QList>
#include <QString>

/// The metadata of a file whose kind TagLib reads: its formats in the file's order. Empty if it has
/// none, if it can't be read, or for any other kind.
QList<MetadataFormat> tagLibMetadata(const QString &path, FileKind kind);
