#pragma once

#include "XaniImageData.h"

#include <QByteArray>
#include <QString>
#include <QVector>

namespace MGraphX {

/// The text index at the end of an animation's file.
///
/// It looks like XML but isn't: its data elements aren't closed. So it is written by templates and
/// read tag by tag.
class XaniIndex
{
public:
    int loop = 1;
    int frameDuration = 1000;
    /// Without their images.
    QVector<XaniImageData> frames;

    /// The text in Latin-1. Quotes and signs outside of Latin-1 become character references in
    /// names; nothing else does (but an ampersand in front of a "#", which would be read as one).
    QByteArray text() const;
    /// Reads a text tolerantly: unknown elements and attributes are passed over, a missing value
    /// leaves its default. A frame counts with its data element only.
    static XaniIndex fromText(const QByteArray &text);

private:
    void readTag(const QString &tag, XaniImageData *frame);
};

}
