#pragma once

#include <QStringList>

namespace QMMultiMedia {

/// The genres by their ID3v1 number, 0 "Blues" to 125 "Dance Hall".
QStringList id3Genres();

/// The words for films and television.
QStringList videoGenres();

}
